<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>第一台相機已完成。現在是第二台。
請轉向其他景物。</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>如果現在離開，可以儲存第一台相機的校正結果。</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>如果現在離開，將不儲存任何內容。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>已拍攝第 %1 張相片。</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>如何移動</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新開始</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>已暫停，不會拍攝相片。</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>第 %1 張相片沒有新內容。請再轉動一些。</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>第 %1 張相片沒有用：細節太少。</translation>
    </message>
</context>
<context>
    <name>CorrectionReadout</name>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
</context>
<context>
    <name>FoundScreen</name>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source>A new calibration was found.</source>
        <translation>已找到新的校正結果。</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>與已儲存的校正結果相比，彩色相機轉動了 %1：</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>向右</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>向左</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>向上</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>向下</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>順時針傾斜</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>逆時針傾斜</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>接下來請對照畫面檢查。只有在您接受後才會儲存。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>相片中的偏差：使用已儲存的校正結果為 %1 像素，使用新的校正結果為 %2 像素。</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>已儲存的校正結果仍然適用。</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>彩色相機的轉動幅度異常大。</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>單憑轉動無法解釋這些相片。相機可能需要送修。</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>保留已儲存的校正結果</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>歷史記錄</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>轉動角度</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>相片中的偏差</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>已儲存</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>未儲存</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>報告：%1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>如何移動</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>請對準細節豐富的景物。
建築物和樹木較為理想，遠近皆可。草地、天空和空白的牆面過於單調。請至少保持兩步的距離。</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>請轉向另一個方向。
將平板電腦稍微向側邊、向上或向下轉動，讓細節出現在畫面的其他位置。</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>請保持靜止，直到畫面閃爍。
讓平板電腦靜止片刻。相片會自動拍攝。然後再次轉動。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>請保持靜止以拍攝校正相片。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>需要陽光</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>陽光不足。
請移到戶外陽光充足的明亮處。</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>陽光充足</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>這裡夠亮了！
請按「繼續」。</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>彩色相機</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>第一台彩色相機</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>第二台彩色相機</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>請將上色的深度影像與彩色影像對齊。
按「繼續」接受彩色相機的校正結果，或按「重新開始」從頭再來。</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>請將上色的深度影像與彩色影像對齊。
按「繼續」接受第一台彩色相機的校正結果，或按「重新開始」從頭再來。</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>請將上色的深度影像與彩色影像對齊。
按「繼續」接受第二台彩色相機的校正結果，或按「重新開始」從頭再來。</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>校正結果已儲存到相機中。</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>上次的校正結果未儲存到相機中。
請重新校正。</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>上次校正日期：%1。</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>相機中既沒有上一次的校正結果，也沒有之前的校正結果。
請重新校正。</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>請移動裝置以拍攝另一張校正相片。</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>由於相片中的景物過於單調，無法完成校正。
請再試一次。請對準建築物或樹木等細節豐富的景物。</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>相機回報已儲存校正結果，但實際上並未儲存</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>相機的影像與新的校正結果不符</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>相機沒有回應</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>KXAPI 呼叫失敗。</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>裝置尚未校正或校正資料無效。</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Tarnex Deepvane 相機發生嚴重問題。</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>繼續之前，請關閉所有 Tarnex Deepvane 應用程式和網頁瀏覽器。</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>您的 Tarnex Deepvane 相機需要更新韌體後才能執行此應用程式。請更新韌體，然後重新執行此應用程式。</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>發生未知的錯誤。</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>連線中斷，且無法重新連線。</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>下載伺服器提供的內容與預期不符。</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>無法將下載的檔案儲存到磁碟。</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>下載的檔案已損毀並已移除。</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>這是沒有簽章的開發版本，不會啟動安裝程式。</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>下載的檔案未經本程式發行者簽署，已移除。</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>沒有適用於此系統的安裝程式。</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>無法啟動安裝程式。</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>電池電量即將耗盡。
請將平板電腦連接到充電器。然後即可將校正結果儲存到相機中。</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>另一個程式阻止了本程式啟動。
請將平板電腦關機，然後重新開機。</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1：已讀回，與先前的校正結果相差 %2°。</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>相機校正</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>請到戶外明亮的陽光下。</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>對準建築物或樹木，遠近皆可。移動、保持靜止，最多會自動拍攝八張相片。</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>用一根手指檢查結果，並將其儲存到相機中。</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>大約需要三分鐘。</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>兩台相機大約需要五分鐘。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>不儲存就離開嗎？
相片和目前的結果將會遺失。相機會保留原有的校正結果。</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>離開</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>繼續校正</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>儲存第一台相機</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>請回到光線充足的地方。
之後會自動繼續。已拍攝的相片仍然有效。</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>光線</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>達到標記處即光線充足</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>稍後會自動繼續。</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>此處缺少細節</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>細節足夠</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>接下來轉向這邊</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>正在開啟相機…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>平板電腦開機後，這可能需要半分鐘。</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>相機尚未回應。請關閉使用它的其他程式，或按「結束」後重新啟動。</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>找不到深度相機。</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>請關閉使用相機的所有其他程式。</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>請將平板電腦關機，然後重新開機。</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>請重新啟動校正。如果仍找不到相機，則平板電腦需要送修。</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>找不到後置相機。</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>請在系統的隱私權設定中檢查是否允許程式使用相機。</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>請在裝置管理員中檢查後置相機是否已啟用。</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>請重新啟動校正。</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>後置相機沒有影像。</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>請關閉使用後置相機的所有其他程式。</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>請確定沒有物體遮住相機。</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>請重新啟動校正。目前的結果尚未儲存。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>請重新啟動校正。結束時可以儲存第一台相機的校正結果。</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>畫面中的深度資訊太少。請對準幾公尺外的物體。</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>已儲存的校正結果</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新開始</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>按住以比較</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>畫面中沒有直立的邊緣。請對準樹幹、柱子或房屋的牆角。</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>通常已經吻合。只有線條偏離邊緣時才需要拖曳。</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>要重新開始嗎？
相片和目前的結果將會遺失。</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>正在將校正結果儲存到相機…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>請稍候，請勿將平板電腦關機。</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>程式會自動關閉，觸碰螢幕也可關閉。</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>已準備好拍攝相片。
請在明亮的陽光下對準建築物或樹木。</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>如何移動</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Segoe UI</source>
        <extracomment>The font that Windows uses for this language.</extracomment>
        <translation>Microsoft JhengHei UI</translation>
    </message>
</context>
<context>
    <name>TutorialScreen</name>
    <message>
        <source>Example</source>
        <translation>範例</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>通常已經吻合。</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>每種顏色代表一個距離。白線必須落在物體的邊緣上。</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>只有偏離時，才向左或向右拖曳，直到吻合。</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>版本 %1 已可使用。
將在幾分鐘內下載並安裝。之後程式會關閉並自動重新啟動。</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>正在下載版本 %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>連線已中斷。正在重試…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在連線…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>正在啟動安裝…
程式現在將關閉並自動重新啟動。</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>更新未成功。</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>此版本可繼續照常使用。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍後</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>第一个摄像头已完成。现在是第二个。
请转向其他景物。</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>如果现在退出，可以保存第一个摄像头的校准结果。</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>如果现在退出，将不保存任何内容。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>第 %1 张照片已拍摄。</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>如何移动</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>已暂停，不拍摄照片。</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>第 %1 张照片没有新内容。请再转动一些。</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>第 %1 张照片没有用：细节太少。</translation>
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
        <translation>已得到新的校准结果。</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>与已保存的校准结果相比，彩色摄像头转动了 %1：</translation>
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
        <translation>顺时针倾斜</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>逆时针倾斜</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>接下来请对照画面检查。只有在您接受后才会保存。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>照片中的偏差：使用已保存的校准结果为 %1 像素，使用新的校准结果为 %2 像素。</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>已保存的校准结果仍然适用。</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>彩色摄像头的转动幅度异常大。</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>仅凭转动无法解释这些照片。摄像头可能需要维修。</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>保留已保存的校准结果</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>转动角度</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>照片中的偏差</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>报告：%1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>如何移动</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>请对准细节丰富的景物。
建筑物和树木较为理想，远近均可。草地、天空和光秃的墙面过于单调。请至少保持两步的距离。</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>请转向另一个方向。
将平板电脑稍微向侧面、向上或向下转动，使细节出现在画面的其他位置。</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>请保持静止，直到屏幕闪一下。
让平板电脑静止片刻。照片会自动拍摄。然后再次转动。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
        <translation>请保持静止以拍摄校准照片。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>需要阳光</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>阳光不足。
请移到室外阳光充足的明亮处。</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>阳光充足</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>此处足够明亮！
请按“继续”。</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>彩色摄像头</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>第一个彩色摄像头</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>第二个彩色摄像头</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>请将着色的深度图像与彩色图像对齐。
按“继续”接受彩色摄像头的校准结果，或按“重新开始”从头再来。</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>请将着色的深度图像与彩色图像对齐。
按“继续”接受第一个彩色摄像头的校准结果，或按“重新开始”从头再来。</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>请将着色的深度图像与彩色图像对齐。
按“继续”接受第二个彩色摄像头的校准结果，或按“重新开始”从头再来。</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>校准结果已保存到摄像头中。</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>上次的校准结果未保存到摄像头中。
请重新校准。</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>上次校准日期：%1。</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>摄像头中既没有上一次的校准结果，也没有之前的校准结果。
请重新校准。</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>请移动设备以拍摄另一张校准照片。</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>由于照片中的景物过于单调，无法完成校准。
请重试。请对准建筑物或树木等细节丰富的景物。</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>摄像头报告已保存校准结果，但实际并未保存</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>摄像头的图像与新的校准结果不符</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>摄像头没有响应</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>KXAPI 调用失败。</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>设备尚未校准或校准数据无效。</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Tarnex Deepvane 摄像头发生严重问题。</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>继续之前，请关闭所有 Tarnex Deepvane 应用程序和网页浏览器。</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>您的 Tarnex Deepvane 摄像头需要先更新固件，才能运行此应用程序。请更新固件，然后重新运行此应用程序。</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>发生未知错误。</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>连接已中断，且无法恢复。</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>下载服务器提供的内容与预期不符。</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>无法将下载的文件保存到磁盘。</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>下载的文件已损坏并已删除。</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>这是没有签名的开发版本，不会启动安装程序。</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>下载的文件未经本程序发布者签名，已删除。</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>没有适用于此系统的安装程序。</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>无法启动安装程序。</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>电池电量即将耗尽。
请将平板电脑连接到充电器。然后即可将校准结果保存到摄像头中。</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>另一个程序阻止了本程序启动。
请将平板电脑关机，然后重新开机。</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1：已读回，与之前的校准结果相差 %2°。</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>摄像头校准</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>请到室外明亮的阳光下。</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>对准建筑物或树木，远近均可。移动、保持静止，最多会自动拍摄八张照片。</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>用一根手指检查结果，并将其保存到摄像头中。</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>大约需要三分钟。</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>两个摄像头大约需要五分钟。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>不保存就退出吗？
照片和目前的结果将会丢失。摄像头保留原有的校准结果。</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>继续校准</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>保存第一个摄像头</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>请回到光线充足的地方。
之后会自动继续。已拍摄的照片仍然有效。</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>光线</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>达到标记处即光线充足</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>稍后将自动继续。</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>此处缺少细节</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>细节足够</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>接下来转向这边</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>正在打开摄像头…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>平板电脑开机后，这可能需要半分钟。</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>摄像头尚未响应。请关闭使用它的其他程序，或按“退出”后重新启动。</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>未找到深度摄像头。</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>请关闭使用摄像头的所有其他程序。</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>请将平板电脑关机，然后重新开机。</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>请重新启动校准。如果仍找不到摄像头，则平板电脑需要维修。</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>未找到后置摄像头。</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>请在系统的隐私设置中检查是否允许程序使用摄像头。</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>请在设备管理器中检查后置摄像头是否已启用。</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>请重新启动校准。</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>后置摄像头没有图像。</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>请关闭使用后置摄像头的所有其他程序。</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>请确保没有物体遮挡摄像头。</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>请重新启动校准。目前的结果尚未保存。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>请重新启动校准。退出时可以保存第一个摄像头的校准结果。</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>画面中的深度信息太少。请对准几米外的物体。</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>已保存的校准结果</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>按住以比较</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>画面中没有竖直边缘。请对准树干、柱子或房屋的墙角。</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>通常已经吻合。只有线条偏离边缘时才需要拖动。</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>要重新开始吗？
照片和目前的结果将会丢失。</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>正在将校准结果保存到摄像头…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>请稍候，请勿将平板电脑关机。</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>程序将自动关闭，触摸屏幕也可关闭。</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>已准备好拍摄照片。
请在明亮的阳光下对准建筑物或树木。</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>如何移动</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Segoe UI</source>
        <extracomment>The font that Windows uses for this language.</extracomment>
        <translation>Microsoft YaHei UI</translation>
    </message>
</context>
<context>
    <name>TutorialScreen</name>
    <message>
        <source>Example</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>通常已经吻合。</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>每种颜色代表一个距离。白线必须落在物体的边缘上。</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>只有偏离时，才向左或向右拖动，直到吻合。</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>版本 %1 可用。
将在几分钟内下载并安装。之后程序会关闭并自动重新启动。</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>正在下载版本 %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>连接已断开。正在重试…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>正在启动安装…
程序现在将关闭并自动重新启动。</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>更新未成功。</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>此版本可继续照常使用。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
</context>
</TS>

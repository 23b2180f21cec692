<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>1 台目のカメラが完了しました。次は 2 台目です。
別の景色に向けてください。</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>今終了する場合、1 台目のカメラのキャリブレーションを保存できます。</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>今終了すると、何も保存されません。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>写真 %1 を撮影しました。</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>動かし方</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>一時停止中です。写真は撮影されません。</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>写真 %1 に新しい情報はありません。さらに向きを変えてください。</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>写真 %1 は役に立ちません。細部が少なすぎます。</translation>
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
        <translation>新しいキャリブレーション結果が得られました。</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>保存済みのキャリブレーションと比べて、カラーカメラは %1 回転:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>右へ</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>左へ</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>時計回りの傾き</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>反時計回りの傾き</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>次に、画像で確認してください。承認した場合にのみ保存されます。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>写真でのずれ: 保存済みのキャリブレーションでは %1 px、新しいものでは %2 px。</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>保存済みのキャリブレーションは今も合っています。</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>カラーカメラの回転が異常に大きくなっています。</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>回転だけでは写真を説明できません。カメラの修理が必要かもしれません。</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>保存済みのまま使う</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>写真でのずれ</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>レポート: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>動かし方</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>細部の多い風景に向けてください。
遠近を問わず、建物や木が適しています。芝生、空、何もない壁は単純すぎます。2 歩以上離れてください。</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>別の方向に向けてください。
細部が画像の別の位置に来るように、タブレットの向きを左右または上下に少し変えてください。</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>画面が光るまで静止してください。
タブレットを少しの間動かさないでください。写真は自動的に撮影されます。その後、再び向きを変えてください。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>静止してください。キャリブレーション用の写真を撮影します。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>日光が必要です</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>日光が足りません。
屋外の明るく日の当たる場所へ移動してください。</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>日光は十分です</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>ここは十分な明るさです。
「続行」を押してください。</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>カラーカメラ</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>1 台目のカラーカメラ</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>2 台目のカラーカメラ</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>色付きの深度画像をカラー画像に合わせてください。
「続行」を押すとカラーカメラのキャリブレーションが承認されます。「やり直す」を押すと最初に戻ります。</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>色付きの深度画像をカラー画像に合わせてください。
「続行」を押すと 1 台目のカラーカメラのキャリブレーションが承認されます。「やり直す」を押すと最初に戻ります。</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>色付きの深度画像をカラー画像に合わせてください。
「続行」を押すと 2 台目のカラーカメラのキャリブレーションが承認されます。「やり直す」を押すと最初に戻ります。</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>キャリブレーションはカメラに保存されました。</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>前回のキャリブレーションはカメラに保存されませんでした。
もう一度キャリブレーションを行ってください。</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>前回のキャリブレーション：%1</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>カメラには前回のキャリブレーションもその前のキャリブレーションも保存されていません。
もう一度キャリブレーションしてください。</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>デバイスを動かしてください。別のキャリブレーション用の写真を撮影します。</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>写真の風景が単純すぎるため、キャリブレーションできません。
もう一度お試しください。建物や木など、変化に富んだ風景に向けてください。</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>カメラはキャリブレーションを保存したと報告しましたが、保存されていません</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>カメラの画像が新しいキャリブレーションと一致しません</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>カメラが応答しません</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>KXAPI の呼び出しに失敗しました。</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>デバイスがキャリブレーションされていないか、キャリブレーション データが無効です。</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Tarnex Deepvane カメラに重大な問題が発生しました。</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>続行する前に、Tarnex Deepvane のアプリケーションと Web ブラウザーをすべて閉じてください。</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>このアプリケーションを実行するには、Tarnex Deepvane カメラのファームウェアの更新が必要です。ファームウェアを更新してから、アプリケーションを再度実行してください。</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>不明なエラーが発生しました。</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>接続が切れ、再接続できませんでした。</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>ダウンロード サーバーから想定された内容が届きません。</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>ダウンロードをディスクに保存できませんでした。</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>ダウンロードしたファイルは破損していたため、削除されました。</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>これは署名のない開発版です。インストーラーは起動しません。</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>ダウンロードしたファイルはこのプログラムの製造元の署名がないため、削除されました。</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>このシステム用のインストーラーはありません。</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>インストーラーを起動できませんでした。</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>バッテリーの残量がほとんどありません。
タブレットを充電器に接続してください。その後、キャリブレーションをカメラに保存できます。</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>別のプログラムのため、このプログラムを起動できません。
タブレットの電源を切り、入れ直してください。</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: 読み戻し済み、以前のキャリブレーションから %2°。</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>カメラのキャリブレーション</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>屋外の明るい日光の下に出てください。</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>遠近を問わず、建物や木に向けてください。動かして静止すると、最大 8 枚の写真が自動的に撮影されます。</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>指 1 本で結果を確認し、カメラに保存してください。</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>所要時間は約 3 分です。</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>所要時間は 2 台のカメラで約 5 分です。</translation>
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
        <translation>保存せずに終了しますか？
写真とこれまでの結果は失われます。カメラには以前のキャリブレーションが残ります。</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>終了する</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>終了しない</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>1 台目のカメラを保存</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>明るい場所に戻ってください。
自動的に再開します。撮影済みの写真は有効です。</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>光量</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>マークに達すれば十分です</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>まもなく自動的に続行します。</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>ここは細部が不足</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>細部は十分</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>次はこちらへ向ける</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>カメラを開いています…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>タブレットの電源を入れた直後は 30 秒ほどかかることがあります。</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>カメラがまだ応答しません。カメラを使用している他のプログラムを閉じるか、「終了」を押してプログラムをもう一度起動してください。</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>深度カメラが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>カメラを使用している他のプログラムをすべて閉じてください。</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>タブレットの電源を切り、入れ直してください。</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>キャリブレーションをもう一度開始してください。それでもカメラが見つからない場合は、タブレットの修理が必要です。</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>背面カメラが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>システムのプライバシー設定で、プログラムによるカメラの使用が許可されていることを確認してください。</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>デバイス マネージャーで、背面カメラが有効になっていることを確認してください。</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>キャリブレーションをもう一度開始してください。</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>背面カメラから画像が届きません。</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>背面カメラを使用している他のプログラムをすべて閉じてください。</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>カメラを覆うものがないことを確認してください。</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>キャリブレーションをもう一度開始してください。これまでの結果は保存されていません。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>キャリブレーションをもう一度開始してください。1 台目のカメラのキャリブレーションは終了時に保存できます。</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>深度情報が少なすぎます。数メートル先のものに向けてください。</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>保存済みのキャリブレーション</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>押している間比較</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>垂直な縁が見えません。木の幹、柱、または建物の角に向けてください。</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>たいていは合っています。線が縁からずれている場合だけドラッグしてください。</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>最初からやり直しますか？
写真とこれまでの結果は失われます。</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>キャリブレーションをカメラに保存しています…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>タブレットの電源を切らずにお待ちください。</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>プログラムは自動的に、または画面に触れると終了します。</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>撮影の準備ができました。
明るい日光の下で、建物や木に向けてください。</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>動かし方</translation>
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
        <translation>Yu Gothic UI</translation>
    </message>
</context>
<context>
    <name>TutorialScreen</name>
    <message>
        <source>Example</source>
        <translation>例</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>たいていは合っています。</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>色は距離を表します。白い線はものの縁に重ならなければなりません。</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>縁からずれている場合だけ、合うまで左または右にドラッグしてください。</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>バージョン %1 を利用できます。
数分でダウンロードおよびインストールされます。その後、プログラムは終了し、自動的に再起動します。</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>バージョン %1 をダウンロードしています…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>接続が切れました。再試行しています…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続しています…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>インストールを開始しています…
プログラムは終了し、自動的に再起動します。</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>更新できませんでした。</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>このバージョンは引き続き使用できます。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
</context>
</TS>

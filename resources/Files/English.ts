<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>The first camera is done. Now the second one.
Turn to other scenery.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>If you exit now, you can store the calibration of the first camera.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>If you exit now, nothing is stored.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Photo %1 taken.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>How to move</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Paused. No photos are taken.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Photo %1 brought nothing new. Turn farther.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Photo %1 brought nothing: too little detail in it.</translation>
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
        <translation>A new calibration was found.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>The color camera has turned by %1 since the stored calibration:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>to the right</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>to the left</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>upwards</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>downwards</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>tilted clockwise</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>tilted counterclockwise</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Next, check it against the picture. It is stored only when you accept it.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>The stored calibration still fits.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>The color camera has turned unusually far.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>A turn alone does not explain the photos. The camera may need service.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Keep stored calibration</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Turned by</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Offset in the photos</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Stored</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Not stored</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Reports: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>How to move</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Pause to capture a calibration photo.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Sunlight Required</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>There is not enough sunlight.
Move outside to a bright, sunlit area.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Sufficient Sunlight</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>It&apos;s bright enough here!
Press continue.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Color Camera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>First Color Camera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Second Color Camera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>The calibration is stored in the camera.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>The last calibration was not stored in the camera.
Please calibrate again.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Last calibrated on %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>The camera holds neither the last calibration nor the one before.
Please calibrate again.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Move the device to capture a different calibration photo.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>The camera said that it stored the calibration, but it did not</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>The camera&apos;s images do not fit the new calibration</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>The camera does not answer</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>A KXAPI call failed.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>The device has not been calibrated or has invalid calibration data.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Something bad has happened with the Tarnex Deepvane camera.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>An unknown error has occured.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>The connection broke off and could not be made again.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>The download server does not give what was expected of it.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>The download could not be kept on the disk.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>The download was damaged and has been removed.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>This is a development build without a signature. It starts no installer.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>The download is not signed by the maker of this program and has been removed.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>There is no installer for this system.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>The installer could not be started.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Another program prevents this one from starting.
Switch the tablet off and on again.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: read back, %2° from the calibration before.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Camera calibration</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Go outside into bright sunlight.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Check the result with one finger, and store it in the camera.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Takes about three minutes.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Takes about five minutes for both cameras.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Stay</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Store first camera</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Return to a well lit area.
It goes on by itself. The photos taken so far count.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Enough light at the mark</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>It goes on by itself in a moment.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Detail missing here</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Enough detail</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Turn this way next</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Opening the camera…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>This can take half a minute after the tablet was switched on.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>The depth camera was not found.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Close every other program that uses a camera.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Switch the tablet off and on again.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Start the calibration again. If the camera is still missing, the tablet needs service.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>The rear camera was not found.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Check in the system&apos;s privacy settings that programs may use the camera.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Check in the device manager that the rear camera is switched on.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Start the calibration again.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>The rear camera delivers no picture.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Close every other program that uses the rear camera.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Make sure that nothing covers the camera.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Start the calibration again. What was found so far is not stored.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Too little depth in view. Point at something a few meters away.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Stored calibration</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Hold to compare</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>It usually fits already. Drag only if the lines lie beside the edges.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Start over?
The photos and what was found so far would be lost.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Storing the calibration in the camera…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Please wait, and do not switch the tablet off.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>The program closes by itself, or when you touch the screen.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Ready to take photos.
Point at buildings or trees in bright sunlight.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>How to move</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Segoe UI</source>
        <extracomment>The font that Windows uses for this language.</extracomment>
        <translation>Segoe UI</translation>
    </message>
</context>
<context>
    <name>TutorialScreen</name>
    <message>
        <source>Example</source>
        <translation>Example</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>It usually fits already.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Every color is a distance. The white lines have to lie on the edges of things.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Only if they lie beside them, drag left or right until they fit.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Downloading version %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>The connection was lost. It is tried again…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 of %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connecting…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Starting the installation…
The program closes now and starts again by itself.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>The update did not succeed.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>This version goes on working as before.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
</context>
</TS>

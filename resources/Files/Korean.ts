<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>첫 번째 카메라가 끝났습니다. 이제 두 번째입니다.
카메라를 다른 풍경으로 향하십시오.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>지금 종료하면 첫 번째 카메라의 캘리브레이션을 저장할 수 있습니다.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>지금 종료하면 아무것도 저장되지 않습니다.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>%1번째 사진을 촬영했습니다.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>움직이는 방법</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>일시 중지되었습니다. 사진을 촬영하지 않습니다.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>%1번째 사진에 새로운 것이 없습니다. 더 돌리십시오.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>%1번째 사진은 도움이 되지 않았습니다. 세부가 너무 적습니다.</translation>
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
        <translation>새 캘리브레이션을 찾았습니다.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>저장된 캘리브레이션을 기준으로 컬러 카메라가 %1 회전했습니다:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>오른쪽으로</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>왼쪽으로</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>위로</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>아래로</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>시계 방향으로 기울어짐</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>시계 반대 방향으로 기울어짐</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>이제 화면에서 확인하십시오. 수락해야만 저장됩니다.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>사진에서의 편차: 저장된 캘리브레이션으로 %1픽셀, 새 캘리브레이션으로 %2픽셀.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>저장된 캘리브레이션이 아직 맞습니다.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>컬러 카메라가 비정상적으로 많이 회전했습니다.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>회전만으로는 사진이 설명되지 않습니다. 카메라 수리가 필요할 수 있습니다.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>저장된 캘리브레이션 유지</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>사진에서의 편차</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>저장됨</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>저장되지 않음</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>보고서: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>움직이는 방법</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>카메라를 세부 모습이 많은 풍경으로 향하십시오.
건물과 나무는 가깝든 멀든 좋습니다. 잔디, 하늘, 빈 벽은 너무 단순합니다. 두 걸음 이상 거리를 두십시오.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>다른 방향으로 돌리십시오.
세부 모습이 화면의 다른 위치에 오도록 태블릿을 옆, 위 또는 아래로 조금 돌리십시오.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>화면이 번쩍일 때까지 움직이지 마십시오.
태블릿을 잠시 가만히 들고 계십시오. 사진이 자동으로 촬영됩니다. 그런 다음 다시 돌리십시오.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>캘리브레이션 사진을 촬영하려면 멈추십시오.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>햇빛이 필요함</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>햇빛이 충분하지 않습니다.
밝고 햇빛이 드는 야외로 이동하십시오.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>햇빛이 충분함</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>이곳은 충분히 밝습니다!
[계속]을 누르십시오.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>컬러 카메라</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>첫 번째 컬러 카메라</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>두 번째 컬러 카메라</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>색으로 표시된 깊이 이미지를 컬러 이미지에 맞추십시오.
컬러 카메라의 캘리브레이션을 수락하려면 [계속]을 누르고, 처음부터 다시 하려면 [다시 시작]을 누르십시오.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>색으로 표시된 깊이 이미지를 컬러 이미지에 맞추십시오.
첫 번째 컬러 카메라의 캘리브레이션을 수락하려면 [계속]을 누르고, 처음부터 다시 하려면 [다시 시작]을 누르십시오.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>색으로 표시된 깊이 이미지를 컬러 이미지에 맞추십시오.
두 번째 컬러 카메라의 캘리브레이션을 수락하려면 [계속]을 누르고, 처음부터 다시 하려면 [다시 시작]을 누르십시오.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>캘리브레이션이 카메라에 저장되었습니다.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>지난 캘리브레이션이 카메라에 저장되지 않았습니다.
다시 캘리브레이션하십시오.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>마지막 캘리브레이션: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>카메라에 마지막 캘리브레이션도 이전 캘리브레이션도 들어 있지 않습니다.
다시 캘리브레이션하십시오.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>다른 캘리브레이션 사진을 촬영하려면 장치를 움직이십시오.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>사진 속 풍경이 너무 단순하여 캘리브레이션할 수 없습니다.
다시 시도하십시오. 카메라를 건물이나 나무처럼 다채로운 풍경으로 향하십시오.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>카메라가 캘리브레이션을 저장했다고 알렸지만 저장되지 않았습니다</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>카메라 영상이 새 캘리브레이션과 맞지 않습니다</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>카메라가 응답하지 않습니다</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>KXAPI 호출에 실패했습니다.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>장치가 캘리브레이션되지 않았거나 캘리브레이션 데이터가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Tarnex Deepvane 카메라에 심각한 문제가 발생했습니다.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>계속하기 전에 Tarnex Deepvane 응용 프로그램과 웹 브라우저를 모두 닫으십시오.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>이 응용 프로그램을 실행하려면 Tarnex Deepvane 카메라의 펌웨어를 업데이트해야 합니다. 펌웨어를 업데이트하고 응용 프로그램을 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>알 수 없는 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>연결이 끊어졌고 다시 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>다운로드 서버가 예상한 내용을 제공하지 않습니다.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>다운로드한 파일을 디스크에 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>다운로드한 파일이 손상되어 삭제되었습니다.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>서명이 없는 개발 버전입니다. 설치 프로그램을 시작하지 않습니다.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>다운로드한 파일에 이 프로그램 제조사의 서명이 없어 삭제되었습니다.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>이 시스템용 설치 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>설치 프로그램을 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>배터리가 거의 없습니다.
태블릿을 충전기에 연결하십시오. 그러면 캘리브레이션을 카메라에 저장할 수 있습니다.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>다른 프로그램 때문에 이 프로그램을 시작할 수 없습니다.
태블릿을 껐다가 다시 켜십시오.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: 다시 읽음, 이전 캘리브레이션에서 %2°.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>카메라 캘리브레이션</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>밝은 햇빛이 있는 야외로 나가십시오.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>거리에 상관없이 카메라를 건물이나 나무로 향하십시오. 움직이고 멈추면 최대 8장의 사진이 자동으로 촬영됩니다.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>한 손가락으로 결과를 확인하고 카메라에 저장하십시오.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>약 3분이 걸립니다.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>두 카메라에 약 5분이 걸립니다.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>저장하지 않고 나가시겠습니까?
사진과 지금까지의 결과가 사라집니다. 카메라는 이전 캘리브레이션을 유지합니다.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>나가기</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>돌아가기</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>첫 번째 카메라 저장</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>밝은 곳으로 돌아가십시오.
자동으로 계속됩니다. 지금까지 촬영한 사진은 유효합니다.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>빛</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>표시에 닿으면 충분함</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>잠시 후 자동으로 계속됩니다.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>여기에 세부 부족</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>세부 충분</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>다음은 이쪽으로 돌리기</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>카메라를 여는 중…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>태블릿을 켠 후 30초 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>카메라가 아직 응답하지 않습니다. 카메라를 사용하는 다른 프로그램을 닫거나 [종료]를 누르고 프로그램을 다시 시작하십시오.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>깊이 카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>카메라를 사용하는 다른 프로그램을 모두 닫으십시오.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>태블릿을 껐다가 다시 켜십시오.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>캘리브레이션을 다시 시작하십시오. 그래도 카메라를 찾을 수 없으면 태블릿의 수리가 필요합니다.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>후면 카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>시스템의 개인 정보 설정에서 프로그램의 카메라 사용이 허용되는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>장치 관리자에서 후면 카메라가 켜져 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>캘리브레이션을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>후면 카메라에서 영상이 나오지 않습니다.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>후면 카메라를 사용하는 다른 프로그램을 모두 닫으십시오.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>카메라를 가리는 것이 없는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>캘리브레이션을 다시 시작하십시오. 지금까지의 결과는 저장되지 않았습니다.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>캘리브레이션을 다시 시작하십시오. 첫 번째 카메라의 캘리브레이션은 종료할 때 저장할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>화면에 깊이 정보가 너무 적습니다. 카메라를 몇 미터 떨어진 것으로 향하십시오.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>저장된 캘리브레이션</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>길게 눌러 비교</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>화면에 수직 가장자리가 없습니다. 카메라를 나무줄기, 기둥 또는 집 모서리로 향하십시오.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>대개 이미 맞습니다. 선이 가장자리에서 벗어난 경우에만 드래그하십시오.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>다시 시작하시겠습니까?
사진과 지금까지의 결과가 사라집니다.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>캘리브레이션을 카메라에 저장하는 중…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>잠시 기다리고 태블릿을 끄지 마십시오.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>프로그램이 자동으로 닫히거나, 화면을 터치하면 닫힙니다.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>사진을 촬영할 준비가 되었습니다.
밝은 햇빛에서 카메라를 건물이나 나무로 향하십시오.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>움직이는 방법</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Segoe UI</source>
        <extracomment>The font that Windows uses for this language.</extracomment>
        <translation>Malgun Gothic</translation>
    </message>
</context>
<context>
    <name>TutorialScreen</name>
    <message>
        <source>Example</source>
        <translation>예시</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>대개 이미 맞습니다.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>색은 거리를 나타냅니다. 흰 선이 물체의 가장자리에 놓여야 합니다.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>벗어난 경우에만 맞을 때까지 왼쪽이나 오른쪽으로 드래그하십시오.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>%1 버전을 사용할 수 있습니다.
몇 분 안에 다운로드되고 설치됩니다. 그런 다음 프로그램이 닫히고 자동으로 다시 시작됩니다.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>%1 버전 다운로드 중…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>연결이 끊어졌습니다. 다시 시도하는 중…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>연결 중…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>설치를 시작하는 중…
이제 프로그램이 닫히고 자동으로 다시 시작됩니다.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>업데이트하지 못했습니다.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>이 버전은 이전과 같이 계속 작동합니다.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
</context>
</TS>

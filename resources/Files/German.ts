<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Die erste Kamera ist fertig. Jetzt die zweite.
Wenden Sie sich einer anderen Umgebung zu.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Wenn Sie jetzt beenden, können Sie die Kalibrierung der ersten Kamera speichern.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Wenn Sie jetzt beenden, wird nichts gespeichert.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Foto %1 aufgenommen.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>So geht’s</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu beginnen</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Angehalten. Es werden keine Fotos aufgenommen.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Foto %1 hat nichts Neues gebracht. Drehen Sie weiter.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Foto %1 hat nichts gebracht: Es enthält zu wenig Details.</translation>
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
        <translation>Eine neue Kalibrierung wurde gefunden.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Die Farbkamera hat sich seit der gespeicherten Kalibrierung um %1 gedreht:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>nach rechts</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>nach links</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>nach oben</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>nach unten</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>im Uhrzeigersinn geneigt</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>gegen den Uhrzeigersinn geneigt</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Prüfen Sie die Kalibrierung nun am Bild. Gespeichert wird sie erst, wenn Sie sie übernehmen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Abweichung in den Fotos: %1 px mit der gespeicherten Kalibrierung, %2 px mit der neuen.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Die gespeicherte Kalibrierung stimmt noch.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Die Farbkamera hat sich ungewöhnlich weit gedreht.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Eine Drehung allein erklärt die Fotos nicht. Die Kamera muss vielleicht zum Kundendienst.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Gespeicherte behalten</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Gedreht um</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Abweichung in den Fotos</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Berichte: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>So geht’s</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Richten Sie das Tablet auf eine detailreiche Umgebung.
Gebäude und Bäume sind gut, ob nah oder fern. Wiese, Himmel und kahle Wände sind zu gleichförmig. Halten Sie mindestens zwei Schritte Abstand.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Drehen Sie sich in eine andere Richtung.
Drehen Sie das Tablet ein wenig zur Seite, nach oben oder nach unten, sodass die Einzelheiten an anderer Stelle im Bild liegen.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Stillhalten, bis es blitzt.
Halten Sie das Tablet einen Moment ruhig. Das Foto wird von selbst aufgenommen. Drehen Sie es dann weiter.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Halten Sie still, um ein Kalibrierfoto aufzunehmen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Sonnenlicht erforderlich</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Das Sonnenlicht reicht nicht aus.
Gehen Sie im Freien an einen hellen, sonnigen Ort.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Genügend Sonnenlicht</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Hier ist es hell genug!
Drücken Sie auf „Weiter“.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Farbkamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Erste Farbkamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Zweite Farbkamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Bringen Sie das farbige Tiefenbild mit dem Farbbild zur Deckung.
Mit „Weiter“ übernehmen Sie die Kalibrierung der Farbkamera. Mit „Neu beginnen“ fangen Sie von vorn an.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Bringen Sie das farbige Tiefenbild mit dem Farbbild zur Deckung.
Mit „Weiter“ übernehmen Sie die Kalibrierung der ersten Farbkamera. Mit „Neu beginnen“ fangen Sie von vorn an.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Bringen Sie das farbige Tiefenbild mit dem Farbbild zur Deckung.
Mit „Weiter“ übernehmen Sie die Kalibrierung der zweiten Farbkamera. Mit „Neu beginnen“ fangen Sie von vorn an.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Die Kalibrierung ist in der Kamera gespeichert.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Die letzte Kalibrierung wurde nicht in der Kamera gespeichert.
Bitte kalibrieren Sie erneut.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Zuletzt kalibriert am %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Die Kamera enthält weder die letzte noch die vorherige Kalibrierung.
Bitte kalibrieren Sie erneut.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Bewegen Sie das Gerät, um ein anderes Kalibrierfoto aufzunehmen.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Die Kalibrierung gelingt nicht, weil die Umgebung auf diesen Fotos zu gleichförmig ist.
Versuchen Sie es noch einmal. Richten Sie das Gerät auf eine abwechslungsreiche Umgebung wie Gebäude oder Bäume.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Die Kamera hat das Speichern der Kalibrierung gemeldet, sie aber nicht gespeichert</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Die Bilder der Kamera passen nicht zur neuen Kalibrierung</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Die Kamera antwortet nicht</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Ein KXAPI-Aufruf ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Das Gerät wurde nicht kalibriert oder hat ungültige Kalibrierdaten.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Bei der Tarnex-Deepvane-Kamera ist ein schwerer Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Bitte schließen Sie alle Tarnex-Deepvane-Anwendungen und alle Webbrowser, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Die Firmware Ihrer Tarnex-Deepvane-Kamera muss aktualisiert werden, bevor diese Anwendung laufen kann. Bitte aktualisieren Sie die Firmware und starten Sie die Anwendung erneut.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Die Verbindung ist abgebrochen und konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Der Downloadserver liefert nicht das Erwartete.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Der Download konnte nicht auf dem Datenträger abgelegt werden.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Der Download war beschädigt und wurde entfernt.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Dies ist eine Entwicklungsversion ohne Signatur. Sie startet kein Installationsprogramm.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Der Download ist nicht vom Hersteller dieses Programms signiert und wurde entfernt.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Für dieses System gibt es kein Installationsprogramm.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Das Installationsprogramm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Der Akku ist fast leer.
Schließen Sie das Tablet an das Ladegerät an. Dann kann die Kalibrierung in der Kamera gespeichert werden.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Ein anderes Programm verhindert den Start dieses Programms.
Schalten Sie das Tablet aus und wieder ein.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: zurückgelesen, %2° neben der vorigen Kalibrierung.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Kamerakalibrierung</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Gehen Sie ins Freie in helles Sonnenlicht.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Richten Sie das Tablet auf Gebäude oder Bäume, nah oder fern. Bewegen, stillhalten: Bis zu acht Fotos werden von selbst aufgenommen.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Prüfen Sie das Ergebnis mit einem Finger und speichern Sie es in der Kamera.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Dauert etwa drei Minuten.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Dauert für beide Kameras etwa fünf Minuten.</translation>
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
        <translation>Ohne Speichern beenden?
Die Fotos und das bisherige Ergebnis gehen verloren. Die Kamera behält ihre alte Kalibrierung.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Bleiben</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Erste Kamera speichern</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Gehen Sie zurück an einen hellen Ort.
Es geht von selbst weiter. Die bisherigen Fotos zählen.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Ab der Marke genügt das Licht</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Es geht gleich von selbst weiter.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Hier fehlen Details</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Genug Details</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Als Nächstes dorthin drehen</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Kamera wird geöffnet…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Nach dem Einschalten des Tablets kann das eine halbe Minute dauern.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Die Kamera antwortet noch nicht. Schließen Sie andere Programme, die sie verwenden, oder drücken Sie auf „Beenden“ und starten Sie das Programm neu.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Die Tiefenkamera wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Schließen Sie alle anderen Programme, die eine Kamera verwenden.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Schalten Sie das Tablet aus und wieder ein.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Starten Sie die Kalibrierung erneut. Fehlt die Kamera weiterhin, muss das Tablet zum Kundendienst.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Die Rückkamera wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Prüfen Sie in den Datenschutzeinstellungen des Systems, ob Programme die Kamera verwenden dürfen.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Prüfen Sie im Geräte-Manager, ob die Rückkamera eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Starten Sie die Kalibrierung erneut.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Die Rückkamera liefert kein Bild.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Schließen Sie alle anderen Programme, die die Rückkamera verwenden.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Achten Sie darauf, dass nichts die Kamera verdeckt.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Starten Sie die Kalibrierung erneut. Das bisherige Ergebnis ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Starten Sie die Kalibrierung erneut. Die Kalibrierung der ersten Kamera kann beim Beenden gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Zu wenig Tiefe im Bild. Richten Sie das Tablet auf etwas in einigen Metern Entfernung.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Gespeicherte Kalibrierung</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu beginnen</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Zum Vergleich gedrückt halten</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Keine aufrechte Kante im Bild. Richten Sie das Tablet auf einen Baumstamm, einen Pfosten oder eine Hausecke.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Meist passt es schon. Ziehen Sie nur, wenn die Linien neben den Kanten liegen.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Neu beginnen?
Die Fotos und das bisherige Ergebnis gehen verloren.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Die Kalibrierung wird in der Kamera gespeichert…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Bitte warten Sie und schalten Sie das Tablet nicht aus.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Das Programm schließt sich von selbst oder wenn Sie den Bildschirm berühren.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Bereit für die Fotos.
Richten Sie das Tablet bei hellem Sonnenlicht auf Gebäude oder Bäume.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>So geht’s</translation>
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
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Meist passt es schon.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Jede Farbe ist eine Entfernung. Die weißen Linien müssen auf den Kanten der Dinge liegen.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Nur wenn sie daneben liegen, ziehen Sie nach links oder rechts, bis sie passen.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Version %1 ist verfügbar.
Sie wird in wenigen Minuten heruntergeladen und installiert. Das Programm schließt sich danach und startet von selbst neu.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Version %1 wird heruntergeladen…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Die Verbindung ist abgebrochen. Neuer Versuch…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 von %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindung wird hergestellt…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Die Installation wird gestartet…
Das Programm schließt sich jetzt und startet von selbst neu.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Die Aktualisierung ist nicht gelungen.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Diese Version arbeitet weiter wie bisher.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
</TS>

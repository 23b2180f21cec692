<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>De eerste camera is klaar. Nu de tweede.
Draai naar een andere omgeving.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Als u nu afsluit, kunt u de kalibratie van de eerste camera opslaan.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Als u nu afsluit, wordt niets opgeslagen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Foto %1 gemaakt.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Zo beweegt u</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Opnieuw beginnen</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Gepauzeerd. Er worden geen foto’s gemaakt.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Foto %1 leverde niets nieuws op. Draai verder.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Foto %1 leverde niets op: te weinig details.</translation>
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
        <translation>Er is een nieuwe kalibratie gevonden.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>De kleurencamera is sinds de opgeslagen kalibratie %1 gedraaid:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>naar rechts</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>naar links</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>omhoog</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>omlaag</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>met de klok mee gekanteld</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>tegen de klok in gekanteld</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Controleer de kalibratie nu aan de hand van het beeld. Deze wordt pas opgeslagen als u deze accepteert.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Afwijking in de foto’s: %1 px met de opgeslagen kalibratie, %2 px met de nieuwe.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>De opgeslagen kalibratie klopt nog.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>De kleurencamera is ongewoon ver gedraaid.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Een draaiing alleen verklaart de foto’s niet. De camera heeft mogelijk onderhoud nodig.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Opgeslagen kalibratie behouden</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Gedraaid</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Afwijking in de foto’s</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Opgeslagen</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Niet opgeslagen</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Rapporten: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Zo beweegt u</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Richt op een omgeving met veel details.
Gebouwen en bomen zijn geschikt, dichtbij of ver weg. Gras, lucht en kale muren zijn te egaal. Houd minstens twee stappen afstand.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Draai naar een andere richting.
Draai de tablet een beetje opzij, omhoog of omlaag, zodat de details ergens anders in beeld komen.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Wacht tot het flitst.
Houd de tablet even stil. De foto wordt vanzelf gemaakt. Draai daarna verder.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Houd stil om een kalibratiefoto te maken.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Zonlicht vereist</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Er is niet genoeg zonlicht.
Ga naar buiten, naar een lichte, zonnige plek.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Voldoende zonlicht</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Hier is het licht genoeg!
Druk op Doorgaan.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Kleurencamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Eerste kleurencamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Tweede kleurencamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Lijn het gekleurde dieptebeeld uit met het kleurenbeeld.
Druk op Doorgaan om de kalibratie van de kleurencamera te accepteren. Of druk op Opnieuw beginnen om terug te gaan naar het begin.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Lijn het gekleurde dieptebeeld uit met het kleurenbeeld.
Druk op Doorgaan om de kalibratie van de eerste kleurencamera te accepteren. Of druk op Opnieuw beginnen om terug te gaan naar het begin.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Lijn het gekleurde dieptebeeld uit met het kleurenbeeld.
Druk op Doorgaan om de kalibratie van de tweede kleurencamera te accepteren. Of druk op Opnieuw beginnen om terug te gaan naar het begin.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>De kalibratie is in de camera opgeslagen.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>De laatste kalibratie is niet in de camera opgeslagen.
Kalibreer opnieuw.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Laatst gekalibreerd op %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>De camera bevat noch de laatste, noch de vorige kalibratie.
Kalibreer opnieuw.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Beweeg het apparaat om een andere kalibratiefoto te maken.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>De kalibratie lukt niet, omdat de omgeving op deze foto’s te egaal is.
Probeer het opnieuw. Richt op een gevarieerde omgeving, zoals gebouwen of bomen.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>De camera meldde dat de kalibratie was opgeslagen, maar dat is niet gebeurd</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>De beelden van de camera kloppen niet met de nieuwe kalibratie</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>De camera reageert niet</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Een KXAPI-aanroep is mislukt.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Het apparaat is niet gekalibreerd of heeft ongeldige kalibratiegegevens.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Er is een ernstig probleem opgetreden met de Tarnex Deepvane-camera.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Sluit alle Tarnex Deepvane-toepassingen en alle webbrowsers voordat u doorgaat.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>De firmware van uw Tarnex Deepvane-camera moet worden bijgewerkt voordat deze toepassing kan werken. Werk de firmware bij en start de toepassing opnieuw.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Er is een onbekende fout opgetreden.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>De verbinding is verbroken en kon niet worden hersteld.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>De downloadserver levert niet wat werd verwacht.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>De download kon niet op de schijf worden opgeslagen.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>De download was beschadigd en is verwijderd.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Dit is een ontwikkelversie zonder handtekening. Er wordt geen installatieprogramma gestart.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>De download is niet ondertekend door de maker van dit programma en is verwijderd.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Er is geen installatieprogramma voor dit systeem.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Het installatieprogramma kon niet worden gestart.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>De batterij is bijna leeg.
Sluit de tablet aan op de oplader. Daarna kan de kalibratie in de camera worden opgeslagen.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Een ander programma verhindert dat dit programma start.
Schakel de tablet uit en weer in.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: teruggelezen, %2° naast de vorige kalibratie.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Camerakalibratie</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Ga naar buiten, in fel zonlicht.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Richt op gebouwen of bomen, dichtbij of ver weg. Beweeg, houd stil, en er worden vanzelf maximaal acht foto’s gemaakt.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Controleer het resultaat met één vinger en sla het op in de camera.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Duurt ongeveer drie minuten.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Duurt voor beide camera’s ongeveer vijf minuten.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Afsluiten zonder op te slaan?
De foto’s en het resultaat tot nu toe gaan verloren. De camera behoudt de oude kalibratie.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Blijven</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Eerste camera opslaan</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Ga terug naar een goed verlichte plek.
Het gaat vanzelf verder. De foto’s tot nu toe tellen mee.</translation>
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
        <translation>Vanaf de streep genoeg licht</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Het gaat zo vanzelf verder.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Hier ontbreken details</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Genoeg details</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Draai nu deze kant op</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Camera wordt geopend…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Dit kan na het inschakelen van de tablet een halve minuut duren.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>De camera reageert nog niet. Sluit andere programma’s die de camera gebruiken, of druk op Afsluiten en start het programma opnieuw.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>De dieptecamera is niet gevonden.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Sluit alle andere programma’s die een camera gebruiken.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Schakel de tablet uit en weer in.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Start de kalibratie opnieuw. Als de camera nog steeds ontbreekt, moet de tablet worden gerepareerd.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>De camera aan de achterkant is niet gevonden.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Controleer in de privacyinstellingen van het systeem of programma’s de camera mogen gebruiken.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Controleer in Apparaatbeheer of de camera aan de achterkant is ingeschakeld.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Start de kalibratie opnieuw.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>De camera aan de achterkant levert geen beeld.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Sluit alle andere programma’s die de camera aan de achterkant gebruiken.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Zorg dat niets de camera bedekt.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Start de kalibratie opnieuw. Het resultaat tot nu toe is niet opgeslagen.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Start de kalibratie opnieuw. De kalibratie van de eerste camera kan bij het afsluiten worden opgeslagen.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Te weinig diepte in beeld. Richt op iets op enkele meters afstand.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Opgeslagen kalibratie</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Opnieuw beginnen</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Ingedrukt houden om te vergelijken</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Geen rechtopstaande rand in beeld. Richt op een boomstam, een paal of de hoek van een huis.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Meestal klopt het al. Sleep alleen als de lijnen naast de randen liggen.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Opnieuw beginnen?
De foto’s en het resultaat tot nu toe gaan verloren.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>De kalibratie wordt in de camera opgeslagen…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Wacht even en schakel de tablet niet uit.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Het programma sluit vanzelf af, of als u het scherm aanraakt.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Klaar om foto’s te maken.
Richt op gebouwen of bomen, in fel zonlicht.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Zo beweegt u</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
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
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Meestal klopt het al.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Elke kleur is een afstand. De witte lijnen moeten op de randen van de dingen liggen.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Alleen als ze ernaast liggen: sleep naar links of rechts tot ze passen.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Versie %1 is beschikbaar.
Deze wordt in enkele minuten gedownload en geïnstalleerd. Daarna wordt het programma vanzelf afgesloten en opnieuw gestart.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Versie %1 wordt gedownload…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>De verbinding is verbroken. Nieuwe poging…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 van %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbinding maken…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>De installatie wordt gestart…
Het programma wordt nu afgesloten en vanzelf opnieuw gestart.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>De update is niet gelukt.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Deze versie blijft werken zoals voorheen.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Bijwerken</translation>
    </message>
</context>
</TS>

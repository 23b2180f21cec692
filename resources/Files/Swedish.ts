<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Den första kameran är klar. Nu den andra.
Vänd dig mot andra omgivningar.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Om du avslutar nu kan du spara den första kamerans kalibrering.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Om du avslutar nu sparas ingenting.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Foto %1 har tagits.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Så rör du dig</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Börja om</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Pausat. Inga foton tas.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Foto %1 gav inget nytt. Vrid längre.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Foto %1 gav ingenting: för få detaljer.</translation>
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
        <translation>En ny kalibrering har hittats.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Färgkameran har vridits %1 sedan den sparade kalibreringen:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>åt höger</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>åt vänster</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>uppåt</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>nedåt</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>lutad medurs</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>lutad moturs</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Kontrollera den nu mot bilden. Den sparas först när du godkänner den.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Avvikelse i fotona: %1 px med den sparade kalibreringen, %2 px med den nya.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Den sparade kalibreringen stämmer fortfarande.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Färgkameran har vridits ovanligt långt.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>En vridning ensam förklarar inte fotona. Kameran kan behöva service.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Behåll sparad kalibrering</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Vridning</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Avvikelse i fotona</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Sparad</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Inte sparad</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Rapporter: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Så rör du dig</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Rikta surfplattan mot en omgivning med många detaljer.
Byggnader och träd är bra, både nära och långt bort. Gräs, himmel och kala väggar är för enkla. Håll minst två stegs avstånd.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Vrid åt ett annat håll.
Vrid surfplattan lite åt sidan, uppåt eller nedåt så att detaljerna hamnar någon annanstans i bilden.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Håll stilla tills det blinkar.
Håll surfplattan stilla ett ögonblick. Fotot tas automatiskt. Vrid sedan igen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klart</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Håll stilla för att ta ett kalibreringsfoto.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Solljus krävs</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Det finns inte tillräckligt med solljus.
Gå ut till en ljus, solig plats.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Tillräckligt med solljus</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Här är det ljust nog!
Tryck på Fortsätt.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Färgkamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Första färgkameran</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Andra färgkameran</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Passa in den färgade djupbilden mot färgbilden.
Tryck på Fortsätt för att godkänna kalibreringen av färgkameran. Eller tryck på Börja om för att starta från början.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Passa in den färgade djupbilden mot färgbilden.
Tryck på Fortsätt för att godkänna kalibreringen av den första färgkameran. Eller tryck på Börja om för att starta från början.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Passa in den färgade djupbilden mot färgbilden.
Tryck på Fortsätt för att godkänna kalibreringen av den andra färgkameran. Eller tryck på Börja om för att starta från början.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibreringen är sparad i kameran.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Den senaste kalibreringen sparades inte i kameran.
Kalibrera igen.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Senast kalibrerad %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Kameran innehåller varken den senaste eller den föregående kalibreringen.
Kalibrera igen.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Vrid enheten för att ta ett annat kalibreringsfoto.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Kalibreringen lyckas inte eftersom omgivningen på dessa foton är för enkel.
Försök igen. Rikta surfplattan mot en omväxlande omgivning som byggnader eller träd.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kameran meddelade att kalibreringen sparades, men det gjorde den inte</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Kamerans bilder stämmer inte med den nya kalibreringen</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kameran svarar inte</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Ett KXAPI-anrop misslyckades.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Enheten har inte kalibrerats eller har ogiltiga kalibreringsdata.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Ett allvarligt problem har uppstått med Tarnex Deepvane-kameran.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Stäng alla Tarnex Deepvane-program och alla webbläsare innan du fortsätter.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Den fasta programvaran i din Tarnex Deepvane-kamera måste uppdateras innan det här programmet kan köras. Uppdatera den och starta programmet igen.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Ett okänt fel har inträffat.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Anslutningen bröts och kunde inte återupprättas.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Hämtningsservern ger inte det som förväntades.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Hämtningen kunde inte sparas på disken.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Hämtningen var skadad och har tagits bort.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Detta är en utvecklingsversion utan signatur. Den startar inget installationsprogram.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Hämtningen är inte signerad av programmets tillverkare och har tagits bort.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Det finns inget installationsprogram för det här systemet.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Installationsprogrammet kunde inte startas.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Batteriet är nästan tomt.
Anslut surfplattan till laddaren. Därefter kan kalibreringen sparas i kameran.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Ett annat program hindrar det här från att starta.
Stäng av surfplattan och slå på den igen.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: läst tillbaka, %2° från den förra kalibreringen.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Kamerakalibrering</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Gå ut i starkt solljus.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Rikta surfplattan mot byggnader eller träd, nära eller långt bort. Vrid, håll stilla, och upp till åtta foton tas automatiskt.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Kontrollera resultatet med ett finger och spara det i kameran.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Tar ungefär tre minuter.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Tar ungefär fem minuter för båda kamerorna.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starta</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Vill du avsluta utan att spara?
Fotona och resultatet hittills går förlorade. Kameran behåller sin gamla kalibrering.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Stanna kvar</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Spara första kameran</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Gå tillbaka till en väl upplyst plats.
Det fortsätter automatiskt. Fotona som har tagits räknas.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Ljus</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Tillräckligt vid markeringen</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Det fortsätter automatiskt om ett ögonblick.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Här saknas detaljer</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Tillräckligt med detaljer</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Vrid åt det här hållet</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Öppnar kameran…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Det kan ta en halv minut efter att surfplattan har slagits på.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kameran svarar inte ännu. Stäng andra program som använder den, eller tryck på Avsluta och starta programmet igen.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Djupkameran hittades inte.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Stäng alla andra program som använder en kamera.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Stäng av surfplattan och slå på den igen.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Starta kalibreringen igen. Om kameran fortfarande saknas behöver surfplattan service.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Den bakre kameran hittades inte.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Kontrollera i systemets sekretessinställningar att program får använda kameran.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Kontrollera i Enhetshanteraren att den bakre kameran är påslagen.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Starta kalibreringen igen.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Den bakre kameran ger ingen bild.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Stäng alla andra program som använder den bakre kameran.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Se till att inget täcker kameran.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Starta kalibreringen igen. Resultatet hittills är inte sparat.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Starta kalibreringen igen. Den första kamerans kalibrering kan sparas när du avslutar.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>För lite djup i bilden. Rikta surfplattan mot något några meter bort.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Sparad kalibrering</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Börja om</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Håll ned för att jämföra</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Ingen upprätt kant i bilden. Rikta surfplattan mot en trädstam, en stolpe eller ett hushörn.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Det stämmer oftast redan. Dra bara om linjerna ligger bredvid kanterna.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Vill du börja om?
Fotona och resultatet hittills går förlorade.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Sparar kalibreringen i kameran…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Vänta, och stäng inte av surfplattan.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Programmet stängs automatiskt, eller när du rör vid skärmen.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Redo att ta foton.
Rikta surfplattan mot byggnader eller träd i starkt solljus.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Så rör du dig</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starta</translation>
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
        <translation>Exempel</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Det stämmer oftast redan.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Varje färg är ett avstånd. De vita linjerna ska ligga på tingens kanter.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Bara om de ligger bredvid: dra åt vänster eller höger tills de stämmer.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Version %1 är tillgänglig.
Den hämtas och installeras på några minuter. Därefter stängs programmet och startar igen automatiskt.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Hämtar version %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Anslutningen bröts. Nytt försök görs…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 av %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Ansluter…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Startar installationen…
Programmet stängs nu och startar igen automatiskt.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Uppdateringen lyckades inte.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Den här versionen fortsätter att fungera som förut.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Uppdatera</translation>
    </message>
</context>
</TS>

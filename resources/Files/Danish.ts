<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Det første kamera er færdigt. Nu det andet.
Drej mod andre omgivelser.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Hvis du afslutter nu, kan du gemme det første kameras kalibrering.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Hvis du afslutter nu, gemmes intet.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Foto %1 er taget.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Sådan gør du</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Start forfra</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Sat på pause. Der tages ingen fotos.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Foto %1 gav intet nyt. Drej længere.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Foto %1 gav intet: for få detaljer.</translation>
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
        <translation>Der er fundet en ny kalibrering.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Farvekameraet har drejet sig %1 siden den gemte kalibrering:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>til højre</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>til venstre</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>opad</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>nedad</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>vippet med uret</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>vippet mod uret</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Kontrollér den nu mod billedet. Den gemmes først, når du accepterer den.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Afvigelse i fotoene: %1 px med den gemte kalibrering, %2 px med den nye.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Den gemte kalibrering passer stadig.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Farvekameraet har drejet sig usædvanligt meget.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>En drejning alene forklarer ikke fotoene. Kameraet skal måske til service.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Behold gemt kalibrering</translation>
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
        <translation>Drejet</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Afvigelse i fotoene</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Gemt</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Ikke gemt</translation>
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
        <translation>Sådan gør du</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Ret tabletten mod omgivelser med mange detaljer.
Bygninger og træer er gode, både tæt på og langt væk. Græs, himmel og bare vægge er for enkle. Hold mindst to skridts afstand.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Drej i en anden retning.
Drej tabletten en smule til siden, op eller ned, så detaljerne kommer til at ligge et andet sted i billedet.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Hold stille, til det blinker.
Hold tabletten stille et øjeblik. Fotoet tages automatisk. Drej derefter igen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Hold stille for at tage et kalibreringsfoto.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Sollys påkrævet</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Der er ikke nok sollys.
Gå udenfor til et lyst, solbeskinnet sted.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Tilstrækkeligt sollys</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Her er lyst nok!
Tryk på Fortsæt.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Farvekamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Første farvekamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Andet farvekamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Ret det farvede dybdebillede ind efter farvebilledet.
Tryk på Fortsæt for at acceptere kalibreringen af farvekameraet. Eller tryk på Start forfra for at begynde igen.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Ret det farvede dybdebillede ind efter farvebilledet.
Tryk på Fortsæt for at acceptere kalibreringen af det første farvekamera. Eller tryk på Start forfra for at begynde igen.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Ret det farvede dybdebillede ind efter farvebilledet.
Tryk på Fortsæt for at acceptere kalibreringen af det andet farvekamera. Eller tryk på Start forfra for at begynde igen.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibreringen er gemt i kameraet.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Den seneste kalibrering blev ikke gemt i kameraet.
Kalibrér igen.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Senest kalibreret %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Kameraet indeholder hverken den seneste eller den forrige kalibrering.
Kalibrér igen.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Drej enheden for at tage et andet kalibreringsfoto.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Kalibreringen lykkes ikke, fordi omgivelserne på disse fotos er for enkle.
Prøv igen. Ret tabletten mod varierede omgivelser som bygninger eller træer.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kameraet meldte, at kalibreringen var gemt, men det er den ikke</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Kameraets billeder passer ikke til den nye kalibrering</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kameraet svarer ikke</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Et KXAPI-kald mislykkedes.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Enheden er ikke kalibreret eller har ugyldige kalibreringsdata.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Der er opstået et alvorligt problem med Tarnex Deepvane-kameraet.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Luk alle Tarnex Deepvane-programmer og alle webbrowsere, før du fortsætter.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Dit Tarnex Deepvane-kamera skal have opdateret firmwaren, før dette program kan køre. Opdater firmwaren, og start programmet igen.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Der er opstået en ukendt fejl.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Forbindelsen blev afbrudt og kunne ikke genoprettes.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Downloadserveren leverer ikke det forventede.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Den hentede fil kunne ikke gemmes på disken.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Den hentede fil var beskadiget og er blevet fjernet.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Dette er en udviklingsversion uden signatur. Den starter ikke noget installationsprogram.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Den hentede fil er ikke signeret af programmets producent og er blevet fjernet.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Der findes intet installationsprogram til dette system.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Installationsprogrammet kunne ikke startes.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Batteriet er næsten tomt.
Slut tabletten til opladeren. Derefter kan kalibreringen gemmes i kameraet.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Et andet program forhindrer dette i at starte.
Sluk tabletten, og tænd den igen.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: læst tilbage, %2° fra den forrige kalibrering.</translation>
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
        <translation>Gå udenfor i klart sollys.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Ret tabletten mod bygninger eller træer, tæt på eller langt væk. Drej, hold stille, og op til otte fotos tages automatisk.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Kontrollér resultatet med én finger, og gem det i kameraet.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Tager cirka tre minutter.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Tager cirka fem minutter for begge kameraer.</translation>
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
        <translation>Vil du afslutte uden at gemme?
Fotoene og resultatet indtil nu går tabt. Kameraet beholder sin gamle kalibrering.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Bliv her</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Gem første kamera</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Gå tilbage til et godt oplyst sted.
Det fortsætter automatisk. De fotos, der er taget, tæller med.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Lys</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Nok lys ved markeringen</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Det fortsætter automatisk om et øjeblik.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Her mangler detaljer</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Nok detaljer</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Drej derefter denne vej</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Åbner kameraet…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Det kan tage et halvt minut, efter at tabletten er tændt.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kameraet svarer ikke endnu. Luk andre programmer, der bruger det, eller tryk på Afslut, og start programmet igen.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Dybdekameraet blev ikke fundet.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Luk alle andre programmer, der bruger et kamera.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Sluk tabletten, og tænd den igen.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Start kalibreringen igen. Hvis kameraet stadig mangler, skal tabletten til service.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Bagkameraet blev ikke fundet.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Kontrollér i systemets indstillinger for beskyttelse af personlige oplysninger, at programmer må bruge kameraet.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Kontrollér i Enhedshåndtering, at bagkameraet er slået til.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Start kalibreringen igen.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Bagkameraet leverer intet billede.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Luk alle andre programmer, der bruger bagkameraet.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Sørg for, at intet dækker kameraet.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Start kalibreringen igen. Resultatet indtil nu er ikke gemt.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Start kalibreringen igen. Det første kameras kalibrering kan gemmes, når du afslutter.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>For lidt dybde i billedet. Ret tabletten mod noget nogle få meter væk.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Gemt kalibrering</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Start forfra</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Hold nede for at sammenligne</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Ingen lodret kant i billedet. Ret tabletten mod en træstamme, en pæl eller et hushjørne.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Det passer som regel allerede. Træk kun, hvis linjerne ligger ved siden af kanterne.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Vil du starte forfra?
Fotoene og resultatet indtil nu går tabt.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Gemmer kalibreringen i kameraet…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Vent venligst, og sluk ikke tabletten.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Programmet lukker automatisk, eller når du rører skærmen.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Klar til at tage fotos.
Ret tabletten mod bygninger eller træer i klart sollys.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Sådan gør du</translation>
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
        <translation>Eksempel</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Det passer som regel allerede.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Hver farve er en afstand. De hvide linjer skal ligge på tingenes kanter.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Kun hvis de ligger ved siden af: træk til venstre eller højre, indtil de passer.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Version %1 er tilgængelig.
Den hentes og installeres på få minutter. Derefter lukker programmet og starter igen automatisk.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Henter version %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Forbindelsen gik tabt. Der prøves igen…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 af %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Opretter forbindelse…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Starter installationen…
Programmet lukker nu og starter igen automatisk.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Opdateringen lykkedes ikke.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Denne version virker fortsat som før.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senere</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Opdater</translation>
    </message>
</context>
</TS>

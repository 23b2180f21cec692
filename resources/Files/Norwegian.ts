<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Det første kameraet er ferdig. Nå det andre.
Vend deg mot andre omgivelser.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Hvis du avslutter nå, kan du lagre kalibreringen av det første kameraet.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Hvis du avslutter nå, lagres ingenting.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Bilde %1 er tatt.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Slik gjør du</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Begynn på nytt</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Satt på pause. Ingen bilder tas.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Bilde %1 ga ikke noe nytt. Drei lenger.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Bilde %1 ga ingenting: for få detaljer.</translation>
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
        <translation>En ny kalibrering ble funnet.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Fargekameraet har dreid seg %1 siden den lagrede kalibreringen:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>mot høyre</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>mot venstre</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>oppover</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>nedover</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>vippet med klokken</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>vippet mot klokken</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Kontroller den nå mot bildet. Den lagres først når du godtar den.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Avvik i bildene: %1 px med den lagrede kalibreringen, %2 px med den nye.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Den lagrede kalibreringen stemmer fortsatt.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Fargekameraet har dreid seg uvanlig mye.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>En dreining alene forklarer ikke bildene. Kameraet må kanskje på service.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Behold lagret kalibrering</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Historikk</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Dreid</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Avvik i bildene</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Lagret</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Ikke lagret</translation>
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
        <translation>Slik gjør du</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Rett nettbrettet mot omgivelser med mange detaljer.
Bygninger og trær er bra, på nært hold eller langt borte. Gress, himmel og nakne vegger er for enkle. Hold minst to skritts avstand.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Snu i en annen retning.
Drei nettbrettet litt til siden, opp eller ned, slik at detaljene havner et annet sted i bildet.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Hold stille til det blinker.
Hold nettbrettet i ro et øyeblikk. Bildet tas automatisk. Drei deretter videre.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Hold stille for å ta et kalibreringsbilde.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Sollys kreves</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Det er ikke nok sollys.
Gå ut til et lyst, solrikt sted.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Tilstrekkelig sollys</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Her er det lyst nok!
Trykk på Fortsett.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Fargekamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Første fargekamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Andre fargekamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Juster det fargelagte dybdebildet etter fargebildet.
Trykk på Fortsett for å godta kalibreringen av fargekameraet. Eller trykk på Begynn på nytt for å starte forfra.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Juster det fargelagte dybdebildet etter fargebildet.
Trykk på Fortsett for å godta kalibreringen av det første fargekameraet. Eller trykk på Begynn på nytt for å starte forfra.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Juster det fargelagte dybdebildet etter fargebildet.
Trykk på Fortsett for å godta kalibreringen av det andre fargekameraet. Eller trykk på Begynn på nytt for å starte forfra.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibreringen er lagret i kameraet.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Den siste kalibreringen ble ikke lagret i kameraet.
Kalibrer på nytt.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Sist kalibrert %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Kameraet inneholder verken den siste eller den forrige kalibreringen.
Kalibrer på nytt.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Drei enheten for å ta et annet kalibreringsbilde.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Kalibreringen lykkes ikke fordi omgivelsene på disse bildene er for enkle.
Prøv igjen. Rett nettbrettet mot varierte omgivelser som bygninger eller trær.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kameraet meldte at kalibreringen var lagret, men det er den ikke</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Kameraets bilder stemmer ikke med den nye kalibreringen</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kameraet svarer ikke</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Et KXAPI-kall mislyktes.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Enheten er ikke kalibrert eller har ugyldige kalibreringsdata.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Det har oppstått et alvorlig problem med Tarnex Deepvane-kameraet.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Lukk alle Tarnex Deepvane-programmer og alle nettlesere før du fortsetter.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Fastvaren i Tarnex Deepvane-kameraet må oppdateres før dette programmet kan kjøres. Oppdater fastvaren, og start programmet på nytt.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Det har oppstått en ukjent feil.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Forbindelsen ble brutt og kunne ikke gjenopprettes.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Nedlastingsserveren leverer ikke det som var forventet.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Nedlastingen kunne ikke lagres på disken.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Nedlastingen var skadet og er fjernet.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Dette er en utviklingsversjon uten signatur. Den starter ikke noe installasjonsprogram.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Nedlastingen er ikke signert av programmets produsent og er fjernet.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Det finnes ikke noe installasjonsprogram for dette systemet.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Installasjonsprogrammet kunne ikke startes.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Batteriet er nesten tomt.
Koble nettbrettet til laderen. Deretter kan kalibreringen lagres i kameraet.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Et annet program hindrer dette i å starte.
Slå nettbrettet av og på igjen.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: lest tilbake, %2° fra forrige kalibrering.</translation>
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
        <translation>Gå ut i sterkt sollys.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Rett nettbrettet mot bygninger eller trær, på nært hold eller langt borte. Drei, hold stille, og opptil åtte bilder tas automatisk.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Kontroller resultatet med én finger, og lagre det i kameraet.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Tar omtrent tre minutter.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Tar omtrent fem minutter for begge kameraene.</translation>
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
        <translation>Vil du avslutte uten å lagre?
Bildene og resultatet så langt går tapt. Kameraet beholder den gamle kalibreringen.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Bli her</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Lagre første kamera</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Gå tilbake til et godt opplyst sted.
Det fortsetter automatisk. Bildene som er tatt, teller.</translation>
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
        <translation>Det fortsetter automatisk om et øyeblikk.</translation>
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
        <translation>Drei denne veien nå</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Åpner kameraet…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Dette kan ta et halvt minutt etter at nettbrettet er slått på.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kameraet svarer ikke ennå. Lukk andre programmer som bruker det, eller trykk på Avslutt og start programmet igjen.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Dybdekameraet ble ikke funnet.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Lukk alle andre programmer som bruker et kamera.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Slå nettbrettet av og på igjen.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Start kalibreringen på nytt. Hvis kameraet fortsatt mangler, må nettbrettet på service.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Bakkameraet ble ikke funnet.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Kontroller i systemets personverninnstillinger at programmer kan bruke kameraet.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Kontroller i Enhetsbehandling at bakkameraet er slått på.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Start kalibreringen på nytt.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Bakkameraet gir ikke noe bilde.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Lukk alle andre programmer som bruker bakkameraet.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Pass på at ingenting dekker kameraet.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Start kalibreringen på nytt. Resultatet så langt er ikke lagret.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Start kalibreringen på nytt. Kalibreringen av det første kameraet kan lagres når du avslutter.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>For lite dybde i bildet. Rett nettbrettet mot noe noen få meter unna.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Lagret kalibrering</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Begynn på nytt</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Hold inne for å sammenligne</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Ingen loddrett kant i bildet. Rett nettbrettet mot en trestamme, en stolpe eller et hushjørne.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Det passer vanligvis allerede. Dra bare hvis linjene ligger ved siden av kantene.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Vil du begynne på nytt?
Bildene og resultatet så langt går tapt.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Lagrer kalibreringen i kameraet…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Vent, og ikke slå av nettbrettet.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Programmet lukkes automatisk, eller når du berører skjermen.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Klar til å ta bilder.
Rett nettbrettet mot bygninger eller trær i sterkt sollys.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Slik gjør du</translation>
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
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Det passer vanligvis allerede.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Hver farge er en avstand. De hvite linjene må ligge på tingenes kanter.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Bare hvis de ligger ved siden av: dra mot venstre eller høyre til de passer.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Versjon %1 er tilgjengelig.
Den lastes ned og installeres på noen minutter. Deretter lukkes programmet og starter igjen automatisk.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Laster ned versjon %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Forbindelsen ble brutt. Prøver igjen…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 av %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Kobler til…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Starter installasjonen…
Programmet lukkes nå og starter igjen automatisk.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Oppdateringen mislyktes.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Denne versjonen fortsetter å virke som før.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senere</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Oppdater</translation>
    </message>
</context>
</TS>

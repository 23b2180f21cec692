<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Prvá kamera je hotová. Teraz druhá.
Otočte sa k inému okoliu.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Ak teraz skončíte, môžete uložiť kalibráciu prvej kamery.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Ak teraz skončíte, nič sa neuloží.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovať</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Snímka %1 zhotovená.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Ako sa pohybovať</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Začať znova</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Pozastavené. Snímky sa nezhotovujú.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Snímka %1 nepriniesla nič nové. Otočte sa viac.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Snímka %1 nič nepriniesla: má málo detailov.</translation>
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
        <translation>Našla sa nová kalibrácia.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Farebná kamera sa od uloženej kalibrácie otočila o %1:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>doprava</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>doľava</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>nahor</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>nadol</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>naklonená v smere hodinových ručičiek</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>naklonená proti smeru hodinových ručičiek</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Teraz ju skontrolujte podľa obrazu. Uloží sa, až keď ju prijmete.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovať</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Odchýlka na snímkach: %1 px s uloženou kalibráciou, %2 px s novou.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Uložená kalibrácia stále vyhovuje.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Farebná kamera sa otočila nezvyčajne ďaleko.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Samotné otočenie snímky nevysvetľuje. Kamera možno potrebuje servis.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Ponechať uloženú kalibráciu</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>História</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Otočenie</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Odchýlka na snímkach</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Uložené</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Neuložené</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Správy: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Ako sa pohybovať</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Namierte na scénu bohatú na detaily.
Vhodné sú budovy a stromy, blízke aj vzdialené. Tráva, obloha a holé steny sú príliš jednoduché. Zachovajte odstup aspoň dvoch krokov.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Otočte sa iným smerom.
Pootočte tablet trochu nabok, nahor alebo nadol, aby sa detaily dostali na iné miesto v obraze.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Počkajte, kým obrazovka blikne.
Chvíľu držte tablet bez pohybu. Snímka sa zhotoví sama. Potom znova pootočte.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Ďalej</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Zastavte sa, aby sa zhotovila kalibračná snímka.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovať</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Vyžaduje sa slnečné svetlo</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Slnečného svetla nie je dosť.
Prejdite von na svetlé, slnečné miesto.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Dostatok slnečného svetla</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Tu je dosť svetla!
Stlačte Pokračovať.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Farebná kamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Prvá farebná kamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Druhá farebná kamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Zarovnajte farebný hĺbkový obraz s farebným obrazom.
Stlačením Pokračovať prijmete kalibráciu farebnej kamery. Stlačením Začať znova sa vrátite na začiatok.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Zarovnajte farebný hĺbkový obraz s farebným obrazom.
Stlačením Pokračovať prijmete kalibráciu prvej farebnej kamery. Stlačením Začať znova sa vrátite na začiatok.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Zarovnajte farebný hĺbkový obraz s farebným obrazom.
Stlačením Pokračovať prijmete kalibráciu druhej farebnej kamery. Stlačením Začať znova sa vrátite na začiatok.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibrácia je uložená v kamere.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Posledná kalibrácia sa neuložila do kamery.
Vykonajte kalibráciu znova.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Posledná kalibrácia: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>V kamere nie je ani posledná, ani predchádzajúca kalibrácia.
Vykonajte kalibráciu znova.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Pohnite zariadením, aby sa zhotovila iná kalibračná snímka.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Kalibrácia sa nedarí, pretože scéna na týchto snímkach je príliš jednoduchá.
Skúste to znova. Namierte na rozmanitú scénu, napríklad na budovy alebo stromy.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kamera ohlásila uloženie kalibrácie, ale neuložila ju</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Snímky kamery nezodpovedajú novej kalibrácii</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kamera neodpovedá</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Volanie KXAPI zlyhalo.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Zariadenie nebolo kalibrované alebo má neplatné kalibračné údaje.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Pri kamere Tarnex Deepvane sa vyskytla závažná chyba.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Skôr ako budete pokračovať, zavrite všetky aplikácie Tarnex Deepvane a všetky webové prehliadače.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Pred spustením tejto aplikácie treba aktualizovať firmvér kamery Tarnex Deepvane. Aktualizujte firmvér a spustite aplikáciu znova.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Vyskytla sa neznáma chyba.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Spojenie sa prerušilo a nepodarilo sa ho obnoviť.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Server na sťahovanie neposkytuje to, čo sa od neho očakávalo.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Stiahnutý súbor sa nepodarilo uložiť na disk.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Stiahnutý súbor bol poškodený a bol odstránený.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Toto je vývojová verzia bez podpisu. Nespúšťa žiadny inštalačný program.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Stiahnutý súbor nie je podpísaný výrobcom tohto programu a bol odstránený.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Pre tento systém neexistuje inštalačný program.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Inštalačný program sa nepodarilo spustiť.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Batéria je takmer vybitá.
Pripojte tablet k nabíjačke. Potom možno kalibráciu uložiť do kamery.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Iný program bráni spusteniu tohto programu.
Vypnite tablet a znova ho zapnite.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: prečítané späť, %2° od predchádzajúcej kalibrácie.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Kalibrácia kamery</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Choďte von na jasné slnko.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Namierte na budovy alebo stromy, blízke aj vzdialené. Pohnite sa, zastavte sa a až osem snímok sa zhotoví samo.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Skontrolujte výsledok jedným prstom a uložte ho do kamery.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Trvá asi tri minúty.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Trvá asi päť minút pre obe kamery.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustiť</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Ukončiť bez uloženia?
Snímky a doterajší výsledok sa stratia. Kamera si ponechá starú kalibráciu.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Ukončiť</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Zostať</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Uložiť prvú kameru</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Vráťte sa na dobre osvetlené miesto.
Pokračuje sa automaticky. Doteraz zhotovené snímky sa počítajú.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Svetlo</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Od značky je svetla dosť</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>O chvíľu sa pokračuje automaticky.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Tu chýbajú detaily</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Dosť detailov</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Teraz sa otočte sem</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Ukončiť</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Otvára sa kamera…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Po zapnutí tabletu to môže trvať pol minúty.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kamera zatiaľ neodpovedá. Zavrite ostatné programy, ktoré ju používajú, alebo stlačte Ukončiť a spustite program znova.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Hĺbková kamera sa nenašla.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Zavrite všetky ostatné programy, ktoré používajú kameru.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Vypnite tablet a znova ho zapnite.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Spustite kalibráciu znova. Ak kamera stále chýba, tablet potrebuje servis.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Zadná kamera sa nenašla.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>V nastaveniach súkromia systému skontrolujte, či programy smú používať kameru.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>V Správcovi zariadení skontrolujte, či je zadná kamera zapnutá.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Spustite kalibráciu znova.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Zadná kamera nedodáva obraz.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Zavrite všetky ostatné programy, ktoré používajú zadnú kameru.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Uistite sa, že kameru nič nezakrýva.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Spustite kalibráciu znova. Doterajší výsledok nie je uložený.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončiť</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Spustite kalibráciu znova. Kalibráciu prvej kamery možno uložiť pri ukončení.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>V zábere je málo hĺbky. Namierte na niečo vzdialené niekoľko metrov.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Uložená kalibrácia</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Začať znova</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Podržaním porovnať</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovať</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>V zábere nie je zvislá hrana. Namierte na kmeň stromu, stĺp alebo roh domu.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Väčšinou to už súhlasí. Ťahajte, len ak čiary ležia vedľa hrán.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Začať znova?
Snímky a doterajší výsledok sa stratia.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Kalibrácia sa ukladá do kamery…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Počkajte, prosím, a nevypínajte tablet.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Program sa zavrie sám, alebo keď sa dotknete obrazovky.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Všetko je pripravené.
Namierte na budovy alebo stromy za jasného slnka.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Ako sa pohybovať</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustiť</translation>
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
        <translation>Príklad</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovať</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Väčšinou to už súhlasí.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Každá farba je vzdialenosť. Biele čiary musia ležať na hranách vecí.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Len ak ležia vedľa, ťahajte doľava alebo doprava, kým nesúhlasia.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>K dispozícii je verzia %1.
V priebehu niekoľkých minút sa stiahne a nainštaluje. Program sa potom zavrie a sám sa znova spustí.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Sťahuje sa verzia %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Spojenie sa stratilo. Skúša sa znova…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 z %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Pripájanie…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Spúšťa sa inštalácia…
Program sa teraz zavrie a sám sa znova spustí.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Aktualizácia sa nepodarila.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Táto verzia funguje ďalej ako doteraz.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Neskôr</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Skúsiť znova</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizovať</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>První kamera je hotová. Teď druhá.
Otočte se k jinému okolí.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Pokud teď skončíte, můžete uložit kalibraci první kamery.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Pokud teď skončíte, nic se neuloží.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Snímek %1 pořízen.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Jak se pohybovat</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Začít znovu</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Pozastaveno. Snímky se nepořizují.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Snímek %1 nepřinesl nic nového. Otočte se víc.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Snímek %1 nic nepřinesl: má málo detailů.</translation>
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
        <translation>Byla nalezena nová kalibrace.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Barevná kamera se od uložené kalibrace otočila o %1:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>doprava</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>doleva</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>nahoru</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>dolů</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>nakloněna ve směru hodinových ručiček</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>nakloněna proti směru hodinových ručiček</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Nyní ji zkontrolujte podle obrazu. Uloží se, teprve až ji přijmete.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Odchylka ve snímcích: %1 px s uloženou kalibrací, %2 px s novou.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Uložená kalibrace stále vyhovuje.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Barevná kamera se otočila neobvykle daleko.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Samotné otočení snímky nevysvětluje. Kamera možná potřebuje servis.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Ponechat uloženou kalibraci</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Otočení</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Odchylka ve snímcích</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Uloženo</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Neuloženo</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Zprávy: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Jak se pohybovat</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Namiřte na scénu bohatou na detaily.
Vhodné jsou budovy a stromy, blízké i vzdálené. Tráva, obloha a holé stěny jsou příliš jednoduché. Zachovejte odstup alespoň dvou kroků.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Otočte se jiným směrem.
Pootočte tablet trochu do strany, nahoru nebo dolů, aby se detaily dostaly na jiné místo v obraze.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Počkejte, až obrazovka blikne.
Chvíli držte tablet v klidu. Snímek se pořídí sám. Potom znovu pootočte.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Zastavte se, aby se pořídil kalibrační snímek.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Je nutné sluneční světlo</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Slunečního světla není dost.
Přejděte ven na světlé, slunečné místo.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Dostatek slunečního světla</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Zde je dost světla!
Stiskněte Pokračovat.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Barevná kamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>První barevná kamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Druhá barevná kamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Zarovnejte barevný hloubkový obraz s barevným obrazem.
Stisknutím Pokračovat přijmete kalibraci barevné kamery. Stisknutím Začít znovu se vrátíte na začátek.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Zarovnejte barevný hloubkový obraz s barevným obrazem.
Stisknutím Pokračovat přijmete kalibraci první barevné kamery. Stisknutím Začít znovu se vrátíte na začátek.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Zarovnejte barevný hloubkový obraz s barevným obrazem.
Stisknutím Pokračovat přijmete kalibraci druhé barevné kamery. Stisknutím Začít znovu se vrátíte na začátek.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibrace je uložena v kameře.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Poslední kalibrace nebyla uložena do kamery.
Proveďte kalibraci znovu.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Poslední kalibrace: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>V kameře není ani poslední, ani předchozí kalibrace.
Proveďte kalibraci znovu.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Pohněte zařízením, aby se pořídil jiný kalibrační snímek.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Kalibrace se nedaří, protože scéna na těchto snímcích je příliš jednoduchá.
Zkuste to znovu. Namiřte na rozmanitou scénu, například na budovy nebo stromy.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kamera ohlásila uložení kalibrace, ale neuložila ji</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Snímky kamery neodpovídají nové kalibraci</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kamera neodpovídá</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Volání KXAPI selhalo.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Zařízení nebylo zkalibrováno nebo má neplatná kalibrační data.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>U kamery Tarnex Deepvane došlo k závažné chybě.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Než budete pokračovat, zavřete všechny aplikace Tarnex Deepvane a všechny webové prohlížeče.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Než bude možné tuto aplikaci spustit, je třeba aktualizovat firmware kamery Tarnex Deepvane. Aktualizujte firmware a spusťte aplikaci znovu.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Došlo k neznámé chybě.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Spojení bylo přerušeno a nepodařilo se je obnovit.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Server pro stahování neposkytuje to, co se od něj očekávalo.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Stažený soubor se nepodařilo uložit na disk.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Stažený soubor byl poškozen a byl odstraněn.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Toto je vývojová verze bez podpisu. Nespouští žádný instalační program.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Stažený soubor není podepsán výrobcem tohoto programu a byl odstraněn.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Pro tento systém neexistuje instalační program.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Instalační program se nepodařilo spustit.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Baterie je téměř vybitá.
Připojte tablet k nabíječce. Potom lze kalibraci uložit do kamery.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Jiný program brání spuštění tohoto programu.
Vypněte tablet a znovu jej zapněte.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: přečteno zpět, %2° od předchozí kalibrace.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Kalibrace kamery</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Jděte ven na jasné slunce.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Namiřte na budovy nebo stromy, blízké i vzdálené. Pohněte se, zastavte se a až osm snímků se pořídí samo.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Zkontrolujte výsledek jedním prstem a uložte jej do kamery.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Trvá asi tři minuty.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Trvá asi pět minut pro obě kamery.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustit</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Ukončit bez uložení?
Snímky a dosavadní výsledek budou ztraceny. Kamera si ponechá starou kalibraci.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Zůstat</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Uložit první kameru</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Vraťte se na dobře osvětlené místo.
Pokračuje se automaticky. Dosud pořízené snímky se počítají.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Světlo</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Od značky je světla dost</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Za okamžik se pokračuje samo.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Tady chybí detaily</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Dost detailů</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Teď se otočte sem</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Otevírá se kamera…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Po zapnutí tabletu to může trvat půl minuty.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kamera zatím neodpovídá. Zavřete ostatní programy, které ji používají, nebo stiskněte Ukončit a spusťte program znovu.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Hloubková kamera nebyla nalezena.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Zavřete všechny ostatní programy, které používají kameru.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Vypněte tablet a znovu jej zapněte.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Spusťte kalibraci znovu. Pokud kamera stále chybí, potřebuje tablet servis.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Zadní kamera nebyla nalezena.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>V nastavení soukromí systému zkontrolujte, zda programy smějí používat kameru.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Ve Správci zařízení zkontrolujte, zda je zadní kamera zapnutá.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Spusťte kalibraci znovu.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Zadní kamera nedodává obraz.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Zavřete všechny ostatní programy, které používají zadní kameru.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Ujistěte se, že kameru nic nezakrývá.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Spusťte kalibraci znovu. Dosavadní výsledek není uložen.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Spusťte kalibraci znovu. Kalibraci první kamery lze uložit při ukončení.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>V záběru je málo hloubky. Namiřte na něco vzdáleného několik metrů.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Uložená kalibrace</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Začít znovu</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Podržením porovnat</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>V záběru není svislá hrana. Namiřte na kmen stromu, sloup nebo roh domu.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Většinou už to souhlasí. Táhněte, jen pokud čáry leží vedle hran.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Začít znovu?
Snímky a dosavadní výsledek budou ztraceny.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Kalibrace se ukládá do kamery…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Počkejte prosím a nevypínejte tablet.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Program se zavře sám, nebo když se dotknete obrazovky.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Vše je připraveno.
Namiřte na budovy nebo stromy za jasného slunce.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Jak se pohybovat</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustit</translation>
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
        <translation>Příklad</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Většinou už to souhlasí.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Každá barva je vzdálenost. Bílé čáry musí ležet na hranách věcí.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Jen pokud leží vedle, táhněte doleva nebo doprava, dokud nesouhlasí.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Je k dispozici verze %1.
Během několika minut se stáhne a nainstaluje. Program se poté zavře a sám se znovu spustí.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Stahuje se verze %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Spojení bylo ztraceno. Zkouší se znovu…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 z %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Připojování…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Spouští se instalace…
Program se nyní zavře a sám se znovu spustí.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Aktualizace se nezdařila.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Tato verze funguje dál jako dosud.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Později</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizovat</translation>
    </message>
</context>
</TS>

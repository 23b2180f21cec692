<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Ensimmäinen kamera on valmis. Nyt toinen.
Käänny toiseen maisemaan.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Jos lopetat nyt, voit tallentaa ensimmäisen kameran kalibroinnin.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Jos lopetat nyt, mitään ei tallenneta.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Jatka</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Kuva %1 otettu.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Näin liikutat</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Aloita alusta</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Keskeytetty. Kuvia ei oteta.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Kuva %1 ei tuonut uutta. Käänny enemmän.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Kuva %1 ei auttanut: siinä on liian vähän yksityiskohtia.</translation>
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
        <translation>Uusi kalibrointi löytyi.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Värikamera on kääntynyt %1 tallennetun kalibroinnin jälkeen:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>oikealle</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>vasemmalle</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>ylöspäin</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>alaspäin</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>kallistunut myötäpäivään</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>kallistunut vastapäivään</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Tarkista se seuraavaksi kuvasta. Se tallennetaan vasta, kun hyväksyt sen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Jatka</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Poikkeama kuvissa: %1 px tallennetulla kalibroinnilla, %2 px uudella.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Tallennettu kalibrointi pitää yhä paikkansa.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Värikamera on kääntynyt epätavallisen paljon.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Pelkkä kääntyminen ei selitä kuvia. Kamera saattaa tarvita huoltoa.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Säilytä tallennettu kalibrointi</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Kääntynyt</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Poikkeama kuvissa</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Tallennettu</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Ei tallennettu</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Raportit: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Näin liikutat</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Suuntaa tabletti maisemaan, jossa on yksityiskohtia.
Rakennukset ja puut ovat hyviä sekä läheltä että kaukaa. Nurmi, taivas ja paljaat seinät ovat liian yksinkertaisia. Pysy vähintään kahden askeleen päässä.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Käänny toiseen suuntaan.
Käännä tablettia hieman sivulle, ylös tai alas, jotta yksityiskohdat siirtyvät toiseen kohtaan kuvassa.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Pysähdy, kunnes näyttö välähtää.
Pidä tablettia hetki paikallaan. Kuva otetaan automaattisesti. Käännä sitten taas.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Valmis</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seuraava</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Ota kalibrointikuva pitämällä laite paikallaan.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Jatka</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Auringonvaloa tarvitaan</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Auringonvaloa ei ole tarpeeksi.
Siirry ulos valoisaan, aurinkoiseen paikkaan.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Auringonvalo riittää</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Täällä on tarpeeksi valoisaa!
Paina Jatka.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Värikamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Ensimmäinen värikamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Toinen värikamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Kohdista värillinen syvyyskuva värikuvaan.
Hyväksy värikameran kalibrointi painamalla Jatka. Tai palaa alkuun painamalla Aloita alusta.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Kohdista värillinen syvyyskuva värikuvaan.
Hyväksy ensimmäisen värikameran kalibrointi painamalla Jatka. Tai palaa alkuun painamalla Aloita alusta.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Kohdista värillinen syvyyskuva värikuvaan.
Hyväksy toisen värikameran kalibrointi painamalla Jatka. Tai palaa alkuun painamalla Aloita alusta.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibrointi on tallennettu kameraan.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Viimeisintä kalibrointia ei tallennettu kameraan.
Kalibroi uudelleen.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Viimeksi kalibroitu %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Kamerassa ei ole viimeisintä eikä edellistä kalibrointia.
Kalibroi uudelleen.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Ota toinen kalibrointikuva kääntämällä laitetta.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Kalibrointi ei onnistu, koska kuvien maisema on liian yksinkertainen.
Yritä uudelleen. Suuntaa tabletti vaihtelevaan maisemaan, kuten rakennuksiin tai puihin.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kamera ilmoitti tallentaneensa kalibroinnin, mutta ei tehnyt niin</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Kameran kuvat eivät vastaa uutta kalibrointia</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kamera ei vastaa</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>KXAPI-kutsu epäonnistui.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Laitetta ei ole kalibroitu tai sen kalibrointitiedot ovat virheelliset.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Tarnex Deepvane -kamerassa on tapahtunut vakava virhe.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Sulje kaikki Tarnex Deepvane -sovellukset ja verkkoselaimet ennen jatkamista.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Tarnex Deepvane -kameran laiteohjelmisto on päivitettävä ennen tämän sovelluksen käyttöä. Päivitä laiteohjelmisto ja käynnistä sovellus uudelleen.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>On tapahtunut tuntematon virhe.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Yhteys katkesi, eikä sitä saatu palautettua.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Latauspalvelin ei anna odotettua sisältöä.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Latausta ei voitu tallentaa levylle.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Lataus oli vioittunut, ja se on poistettu.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Tämä on allekirjoittamaton kehitysversio. Se ei käynnistä asennusohjelmaa.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Lataus ei ole tämän ohjelman valmistajan allekirjoittama, ja se on poistettu.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Tälle järjestelmälle ei ole asennusohjelmaa.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Asennusohjelmaa ei voitu käynnistää.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Akku on lähes tyhjä.
Kytke tabletti laturiin. Sitten kalibrointi voidaan tallentaa kameraan.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Toinen ohjelma estää tätä käynnistymästä.
Sammuta tabletti ja käynnistä se uudelleen.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: luettu takaisin, %2° edellisestä kalibroinnista.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Kameran kalibrointi</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Mene ulos kirkkaaseen auringonvaloon.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Suuntaa tabletti rakennuksiin tai puihin, lähellä tai kaukana. Käännä ja pysähdy, niin enintään kahdeksan kuvaa otetaan automaattisesti.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Tarkista tulos yhdellä sormella ja tallenna se kameraan.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Kestää noin kolme minuuttia.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Kestää molemmille kameroille noin viisi minuuttia.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Aloita</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Poistutaanko tallentamatta?
Kuvat ja tähänastinen tulos menetetään. Kamera säilyttää vanhan kalibrointinsa.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Poistu</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Älä poistu</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Tallenna 1. kamera</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Palaa hyvin valaistuun paikkaan.
Toiminta jatkuu automaattisesti. Jo otetut kuvat säilyvät.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Valo</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Valo riittää merkistä alkaen</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Toiminta jatkuu kohta automaattisesti.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Yksityiskohdat puuttuvat</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Riittävästi yksityiskohtia</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Käänny nyt tähän suuntaan</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Poistu</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Kameraa avataan…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Tämä voi kestää puoli minuuttia tabletin käynnistämisen jälkeen.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kamera ei vielä vastaa. Sulje muut sitä käyttävät ohjelmat tai paina Poistu ja käynnistä ohjelma uudelleen.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Syvyyskameraa ei löytynyt.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Sulje kaikki muut kameraa käyttävät ohjelmat.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Sammuta tabletti ja käynnistä se uudelleen.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Käynnistä kalibrointi uudelleen. Jos kamera puuttuu edelleen, tabletti tarvitsee huoltoa.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Takakameraa ei löytynyt.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Tarkista järjestelmän tietosuoja-asetuksista, että ohjelmat saavat käyttää kameraa.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Tarkista Laitehallinnasta, että takakamera on käytössä.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Käynnistä kalibrointi uudelleen.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Takakamera ei tuota kuvaa.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Sulje kaikki muut takakameraa käyttävät ohjelmat.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Varmista, ettei mikään peitä kameraa.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Käynnistä kalibrointi uudelleen. Tähänastista tulosta ei ole tallennettu.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Poistu</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Käynnistä kalibrointi uudelleen. Ensimmäisen kameran kalibrointi voidaan tallentaa poistuttaessa.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Näkyvissä on liian vähän syvyyttä. Suuntaa tabletti johonkin muutaman metrin päähän.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Tallennettu kalibrointi</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Aloita alusta</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Vertaa pitämällä painettuna</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Jatka</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Näkyvissä ei ole pystyreunaa. Suuntaa tabletti puunrunkoon, pylvääseen tai talon kulmaan.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Yleensä se sopii jo. Vedä vain, jos viivat ovat reunojen vieressä.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Aloitetaanko alusta?
Kuvat ja tähänastinen tulos menetetään.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Kalibrointia tallennetaan kameraan…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Odota äläkä sammuta tablettia.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Ohjelma sulkeutuu automaattisesti tai kun kosketat näyttöä.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Valmiina ottamaan kuvia.
Suuntaa tabletti rakennuksiin tai puihin kirkkaassa auringonvalossa.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Näin liikutat</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Aloita</translation>
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
        <translation>Esimerkki</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Jatka</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Yleensä se sopii jo.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Jokainen väri on etäisyys. Valkoisten viivojen on oltava esineiden reunoilla.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Vain jos ne ovat vieressä, vedä vasemmalle tai oikealle, kunnes ne sopivat.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Versio %1 on saatavilla.
Se ladataan ja asennetaan muutamassa minuutissa. Sen jälkeen ohjelma sulkeutuu ja käynnistyy uudelleen automaattisesti.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Ladataan versiota %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Yhteys katkesi. Yritetään uudelleen…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 Mt</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Yhdistetään…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Asennusta käynnistetään…
Ohjelma sulkeutuu nyt ja käynnistyy uudelleen automaattisesti.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Päivitys ei onnistunut.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Tämä versio toimii edelleen kuten ennenkin.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Myöhemmin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yritä uudelleen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Päivitä</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>La prima fotocamera è pronta. Ora la seconda.
Inquadrare un altro scenario.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Uscendo ora, si può memorizzare la calibrazione della prima fotocamera.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Uscendo ora, non viene memorizzato nulla.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Foto %1 scattata.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Come muoversi</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>In pausa. Non vengono scattate foto.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>La foto %1 non ha aggiunto nulla. Ruotare di più.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>La foto %1 non è servita: troppo pochi dettagli.</translation>
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
        <translation>È stata trovata una nuova calibrazione.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>La fotocamera a colori è ruotata di %1 rispetto alla calibrazione memorizzata:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>verso destra</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>verso sinistra</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>verso l’alto</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>verso il basso</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>inclinata in senso orario</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>inclinata in senso antiorario</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Ora verificarla con l’immagine. Viene memorizzata solo quando la si accetta.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Scarto nelle foto: %1 px con la calibrazione memorizzata, %2 px con quella nuova.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>La calibrazione memorizzata va ancora bene.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>La rotazione della fotocamera a colori è insolitamente grande.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Una rotazione da sola non spiega le foto. La fotocamera potrebbe richiedere assistenza.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Mantieni la calibrazione memorizzata</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Scarto nelle foto</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Memorizzata</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Non memorizzata</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Rapporti: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Come muoversi</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Inquadrare un paesaggio ricco di dettagli.
Gli edifici e gli alberi, vicini o lontani, sono adatti. Erba, cielo e pareti spoglie sono troppo uniformi. Mantenere almeno due passi di distanza.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Girarsi in un’altra direzione.
Ruotare leggermente il tablet di lato, verso l’alto o verso il basso, in modo che i dettagli si trovino altrove nell’immagine.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Fermarsi fino al lampo.
Tenere fermo il tablet per un momento. La foto viene scattata automaticamente. Poi ruotare di nuovo.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Fermarsi per scattare una foto di calibrazione.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Luce solare necessaria</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>La luce solare non è sufficiente.
Spostarsi all’aperto in una zona luminosa e soleggiata.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Luce solare sufficiente</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Qui c’è abbastanza luce!
Premere Continua.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Fotocamera a colori</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Prima fotocamera a colori</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Seconda fotocamera a colori</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Allineare l’immagine di profondità colorata all’immagine a colori.
Premere Continua per accettare la calibrazione della fotocamera a colori, oppure Ricomincia per ripartire dall’inizio.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Allineare l’immagine di profondità colorata all’immagine a colori.
Premere Continua per accettare la calibrazione della prima fotocamera a colori, oppure Ricomincia per ripartire dall’inizio.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Allineare l’immagine di profondità colorata all’immagine a colori.
Premere Continua per accettare la calibrazione della seconda fotocamera a colori, oppure Ricomincia per ripartire dall’inizio.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>La calibrazione è memorizzata nella fotocamera.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>L’ultima calibrazione non è stata memorizzata nella fotocamera.
Eseguire di nuovo la calibrazione.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Ultima calibrazione: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>La fotocamera non contiene né l’ultima calibrazione né quella precedente.
Eseguire di nuovo la calibrazione.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Ruotare il dispositivo per scattare un’altra foto di calibrazione.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>La calibrazione non riesce perché il paesaggio in queste foto è troppo uniforme.
Riprovare. Inquadrare un paesaggio vario, con edifici o alberi.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>La fotocamera ha segnalato di aver memorizzato la calibrazione, ma non lo ha fatto</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Le immagini della fotocamera non corrispondono alla nuova calibrazione</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>La fotocamera non risponde</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Una chiamata KXAPI non è riuscita.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Il dispositivo non è stato calibrato o contiene dati di calibrazione non validi.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Si è verificato un problema grave con la fotocamera Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Chiudere tutte le applicazioni Tarnex Deepvane e tutti i browser web prima di continuare.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Il firmware della fotocamera Tarnex Deepvane deve essere aggiornato prima di poter eseguire questa applicazione. Aggiornare il firmware ed eseguire di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Si è verificato un errore sconosciuto.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>La connessione si è interrotta e non è stato possibile ripristinarla.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Il server di download non fornisce quanto previsto.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Non è stato possibile salvare il download sul disco.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Il download era danneggiato ed è stato rimosso.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Questa è una versione di sviluppo senza firma. Non avvia alcun programma di installazione.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Il download non è firmato dal produttore di questo programma ed è stato rimosso.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Non esiste un programma di installazione per questo sistema.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Non è stato possibile avviare il programma di installazione.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>La batteria è quasi scarica.
Collegare il tablet al caricabatterie. Poi la calibrazione potrà essere memorizzata nella fotocamera.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Un altro programma impedisce l’avvio di questo.
Spegnere e riaccendere il tablet.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: riletta, a %2° dalla calibrazione precedente.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Calibrazione della fotocamera</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Uscire all’aperto in piena luce solare.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Inquadrare edifici o alberi, vicini o lontani. Ruotare, fermarsi: fino a otto foto vengono scattate automaticamente.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Verificare il risultato con un dito e memorizzarlo nella fotocamera.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Richiede circa tre minuti.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Richiede circa cinque minuti per entrambe le fotocamere.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Uscire senza memorizzare?
Le foto e il risultato ottenuto finora andranno persi. La fotocamera mantiene la vecchia calibrazione.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Rimani</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Memorizza 1ª fotocamera</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Tornare in una zona ben illuminata.
Si prosegue automaticamente. Le foto già scattate contano.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Luce</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Sufficiente dal segno</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Si prosegue automaticamente tra un istante.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Mancano dettagli qui</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Dettagli sufficienti</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Ora ruotare da questa parte</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Apertura della fotocamera…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Dopo l’accensione del tablet può richiedere mezzo minuto.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>La fotocamera non risponde ancora. Chiudere gli altri programmi che la utilizzano, oppure premere Esci e riavviare il programma.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>La fotocamera di profondità non è stata trovata.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Chiudere tutti gli altri programmi che utilizzano una fotocamera.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Spegnere e riaccendere il tablet.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Avviare di nuovo la calibrazione. Se la fotocamera manca ancora, il tablet richiede assistenza.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>La fotocamera posteriore non è stata trovata.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Verificare nelle impostazioni della privacy del sistema che i programmi possano usare la fotocamera.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Verificare in Gestione dispositivi che la fotocamera posteriore sia attivata.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Avviare di nuovo la calibrazione.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>La fotocamera posteriore non fornisce immagini.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Chiudere tutti gli altri programmi che utilizzano la fotocamera posteriore.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Assicurarsi che nulla copra la fotocamera.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Avviare di nuovo la calibrazione. Il risultato ottenuto finora non è memorizzato.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Avviare di nuovo la calibrazione. La calibrazione della prima fotocamera può essere memorizzata all’uscita.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Profondità visibile insufficiente. Inquadrare qualcosa a qualche metro di distanza.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Calibrazione memorizzata</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Tieni premuto per confrontare</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Nessun bordo verticale visibile. Inquadrare un tronco, un palo o lo spigolo di una casa.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Di solito è già corretto. Trascinare solo se le linee sono accanto ai bordi.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Ricominciare?
Le foto e il risultato ottenuto finora andranno persi.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Memorizzazione della calibrazione nella fotocamera…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Attendere senza spegnere il tablet.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Il programma si chiude automaticamente o toccando lo schermo.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Pronto per le foto.
Inquadrare edifici o alberi in piena luce solare.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Come muoversi</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
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
        <translation>Esempio</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Di solito è già corretto.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Ogni colore è una distanza. Le linee bianche devono trovarsi sui bordi degli oggetti.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Solo se sono accanto, trascinare a sinistra o a destra finché non coincidono.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>La versione %1 è disponibile.
Viene scaricata e installata in pochi minuti. Il programma poi si chiude e si riavvia automaticamente.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Download della versione %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>La connessione è stata persa. Nuovo tentativo…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 di %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connessione…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Avvio dell’installazione…
Il programma ora si chiude e si riavvia automaticamente.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>L’aggiornamento non è riuscito.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Questa versione continua a funzionare come prima.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
</context>
</TS>

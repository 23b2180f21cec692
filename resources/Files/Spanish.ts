<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>La primera cámara está lista. Ahora, la segunda.
Apunte a otro entorno.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Si sale ahora, puede guardar la calibración de la primera cámara.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Si sale ahora, no se guarda nada.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Foto %1 tomada.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Cómo moverse</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>En pausa. No se toman fotos.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>La foto %1 no ha aportado nada nuevo. Gire más.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>La foto %1 no ha aportado nada: tiene pocos detalles.</translation>
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
        <translation>Se ha encontrado una nueva calibración.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>La cámara en color ha girado %1 desde la calibración guardada:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>hacia la derecha</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>hacia la izquierda</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>hacia arriba</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>hacia abajo</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>inclinada en sentido horario</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>inclinada en sentido antihorario</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Ahora compruébela con la imagen. Solo se guarda cuando la acepte.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Desviación en las fotos: %1 px con la calibración guardada, %2 px con la nueva.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>La calibración guardada sigue siendo válida.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>El giro de la cámara en color es inusualmente grande.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Un giro por sí solo no explica las fotos. Puede que la cámara necesite servicio técnico.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Conservar la calibración guardada</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Desviación en las fotos</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Guardada</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>No guardada</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Informes: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Cómo moverse</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Apunte a un entorno con muchos detalles.
Los edificios y los árboles son adecuados, estén cerca o lejos. La hierba, el cielo y las paredes lisas son demasiado uniformes. Mantenga al menos dos pasos de distancia.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Gire hacia otra dirección.
Gire un poco la tableta hacia un lado, hacia arriba o hacia abajo para que los detalles queden en otra parte de la imagen.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Deténgase hasta que destelle.
Mantenga la tableta quieta un momento. La foto se toma automáticamente. Después, gire de nuevo.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Deténgase para tomar una foto de calibración.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Se requiere luz solar</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>No hay suficiente luz solar.
Salga a un lugar claro y soleado.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Luz solar suficiente</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>¡Aquí hay suficiente luz!
Pulse Continuar.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Cámara en color</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Primera cámara en color</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Segunda cámara en color</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Alinee la imagen de profundidad coloreada con la imagen en color.
Pulse Continuar para aceptar la calibración de la cámara en color, o pulse Empezar de nuevo para volver al principio.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Alinee la imagen de profundidad coloreada con la imagen en color.
Pulse Continuar para aceptar la calibración de la primera cámara en color, o pulse Empezar de nuevo para volver al principio.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Alinee la imagen de profundidad coloreada con la imagen en color.
Pulse Continuar para aceptar la calibración de la segunda cámara en color, o pulse Empezar de nuevo para volver al principio.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>La calibración está guardada en la cámara.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>La última calibración no se guardó en la cámara.
Calibre de nuevo.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Última calibración: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>La cámara no contiene ni la última calibración ni la anterior.
Calibre de nuevo.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Mueva el dispositivo para tomar otra foto de calibración.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>La calibración no funciona porque el entorno de estas fotos es demasiado uniforme.
Inténtelo de nuevo. Apunte a un entorno variado, como edificios o árboles.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>La cámara indicó que había guardado la calibración, pero no lo hizo</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Las imágenes de la cámara no corresponden a la nueva calibración</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>La cámara no responde</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Ha fallado una llamada de KXAPI.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>El dispositivo no se ha calibrado o tiene datos de calibración no válidos.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Se ha producido un problema grave con la cámara Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Cierre todas las aplicaciones de Tarnex Deepvane y todos los navegadores web antes de continuar.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Es necesario actualizar el firmware de la cámara Tarnex Deepvane para ejecutar esta aplicación. Actualice el firmware y ejecute la aplicación de nuevo.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Se ha producido un error desconocido.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>La conexión se interrumpió y no se pudo restablecer.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>El servidor de descargas no proporciona lo esperado.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>La descarga no se pudo guardar en el disco.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>La descarga estaba dañada y se ha eliminado.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Esta es una versión de desarrollo sin firma. No inicia ningún instalador.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>La descarga no está firmada por el fabricante de este programa y se ha eliminado.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>No hay instalador para este sistema.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>No se pudo iniciar el instalador.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>La batería está casi agotada.
Conecte la tableta al cargador. Después se podrá guardar la calibración en la cámara.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Otro programa impide que este se inicie.
Apague la tableta y vuelva a encenderla.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: leída de nuevo, a %2° de la calibración anterior.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Calibración de la cámara</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Salga al exterior, a plena luz del sol.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Apunte a edificios o árboles, cercanos o lejanos. Mueva, deténgase y se tomarán automáticamente hasta ocho fotos.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Compruebe el resultado con un dedo y guárdelo en la cámara.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Tarda unos tres minutos.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Tarda unos cinco minutos para ambas cámaras.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>¿Salir sin guardar?
Se perderán las fotos y el resultado obtenido hasta ahora. La cámara conserva su calibración anterior.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Quedarse</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Guardar 1.ª cámara</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Vuelva a un lugar bien iluminado.
El proceso continúa automáticamente. Las fotos ya tomadas cuentan.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Luz</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Suficiente a partir de la marca</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>El proceso continúa automáticamente en un momento.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Faltan detalles aquí</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Suficientes detalles</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Gire ahora hacia aquí</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Abriendo la cámara…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Puede tardar medio minuto después de encender la tableta.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>La cámara aún no responde. Cierre otros programas que la utilicen, o pulse Salir e inicie el programa de nuevo.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>No se encontró la cámara de profundidad.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Cierre todos los demás programas que utilicen una cámara.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Apague la tableta y vuelva a encenderla.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Inicie la calibración de nuevo. Si la cámara sigue sin aparecer, la tableta necesita servicio técnico.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>No se encontró la cámara trasera.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Compruebe en la configuración de privacidad del sistema que los programas pueden usar la cámara.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Compruebe en el administrador de dispositivos que la cámara trasera está activada.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Inicie la calibración de nuevo.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>La cámara trasera no proporciona imagen.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Cierre todos los demás programas que utilicen la cámara trasera.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Asegúrese de que nada cubra la cámara.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Inicie la calibración de nuevo. El resultado obtenido hasta ahora no se ha guardado.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Inicie la calibración de nuevo. La calibración de la primera cámara se puede guardar al salir.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Hay muy poca profundidad visible. Apunte a algo situado a unos metros.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Calibración guardada</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Mantener pulsado para comparar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>No hay ningún borde vertical visible. Apunte a un tronco, un poste o la esquina de una casa.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Normalmente ya coincide. Arrastre solo si las líneas están junto a los bordes.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>¿Empezar de nuevo?
Se perderán las fotos y el resultado obtenido hasta ahora.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Guardando la calibración en la cámara…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Espere y no apague la tableta.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>El programa se cierra automáticamente o al tocar la pantalla.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Listo para tomar fotos.
Apunte a edificios o árboles, a plena luz del sol.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Cómo moverse</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
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
        <translation>Ejemplo</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Normalmente ya coincide.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Cada color es una distancia. Las líneas blancas deben estar sobre los bordes de los objetos.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Solo si están al lado, arrastre hacia la izquierda o la derecha hasta que coincidan.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>La versión %1 está disponible.
Se descarga e instala en unos minutos. Después, el programa se cierra y vuelve a iniciarse automáticamente.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Descargando la versión %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Se perdió la conexión. Se intenta de nuevo…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 de %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Iniciando la instalación…
El programa se cierra ahora y vuelve a iniciarse automáticamente.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>La actualización no se ha realizado.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Esta versión sigue funcionando como antes.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>A primeira câmara está pronta. Agora, a segunda.
Volte-se para outro cenário.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Se sair agora, pode guardar a calibração da primeira câmara.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Se sair agora, nada é guardado.</translation>
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
        <translation>Fotografia %1 tirada.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Como mover o tablet</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Em pausa. Não são tiradas fotografias.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>A fotografia %1 não trouxe nada de novo. Rode mais.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>A fotografia %1 não acrescentou nada: tem poucos detalhes.</translation>
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
        <translation>Foi encontrada uma nova calibração.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>A câmara a cores rodou %1 desde a calibração guardada:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>para a direita</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>para a esquerda</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>para cima</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>para baixo</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>inclinada no sentido horário</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>inclinada no sentido anti-horário</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Agora, verifique-a na imagem. Só é guardada quando a aceitar.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Desvio nas fotografias: %1 px com a calibração guardada, %2 px com a nova.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>A calibração guardada ainda serve.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>A rotação da câmara a cores é invulgarmente grande.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Uma rotação por si só não explica as fotografias. A câmara pode necessitar de assistência.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Manter a calibração guardada</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Desvio nas fotografias</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Guardada</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Não guardada</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Relatórios: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Como mover o tablet</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Aponte para um cenário rico em pormenores.
Edifícios e árvores são adequados, próximos ou distantes. Relva, céu e paredes lisas são demasiado uniformes. Mantenha pelo menos dois passos de distância.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Rode para outra direção.
Rode um pouco o tablet para o lado, para cima ou para baixo, para que os pormenores fiquem noutro ponto da imagem.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Pare até o ecrã piscar.
Mantenha o tablet imóvel por um momento. A fotografia é tirada automaticamente. Depois, rode novamente.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Pare para tirar uma fotografia de calibração.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Luz solar necessária</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Não há luz solar suficiente.
Desloque-se para o exterior, para um local claro e soalheiro.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Luz solar suficiente</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Aqui há luz suficiente!
Prima Continuar.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Câmara a cores</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Primeira câmara a cores</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Segunda câmara a cores</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Alinhe a imagem de profundidade colorida com a imagem a cores.
Prima Continuar para aceitar a calibração da câmara a cores, ou prima Recomeçar para voltar ao início.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Alinhe a imagem de profundidade colorida com a imagem a cores.
Prima Continuar para aceitar a calibração da primeira câmara a cores, ou prima Recomeçar para voltar ao início.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Alinhe a imagem de profundidade colorida com a imagem a cores.
Prima Continuar para aceitar a calibração da segunda câmara a cores, ou prima Recomeçar para voltar ao início.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>A calibração está guardada na câmara.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>A última calibração não foi guardada na câmara.
Calibre novamente.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Última calibração em %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>A câmara não contém nem a última calibração nem a anterior.
Calibre novamente.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Mova o dispositivo para tirar outra fotografia de calibração.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>A calibração não funciona porque o cenário destas fotografias é demasiado uniforme.
Tente novamente. Aponte para um cenário variado, como edifícios ou árvores.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>A câmara indicou que guardou a calibração, mas não o fez</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>As imagens da câmara não correspondem à nova calibração</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>A câmara não responde</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Uma chamada KXAPI falhou.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>O dispositivo não foi calibrado ou tem dados de calibração inválidos.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Ocorreu um problema grave com a câmara Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Feche todas as aplicações Tarnex Deepvane e todos os navegadores Web antes de continuar.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>O firmware da sua câmara Tarnex Deepvane tem de ser atualizado antes de executar esta aplicação. Atualize o firmware e execute novamente a aplicação.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Ocorreu um erro desconhecido.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>A ligação foi interrompida e não foi possível restabelecê-la.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>O servidor de transferências não fornece o que era esperado.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Não foi possível guardar a transferência no disco.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>A transferência estava danificada e foi removida.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Esta é uma versão de desenvolvimento sem assinatura. Não inicia nenhum instalador.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>A transferência não está assinada pelo fabricante deste programa e foi removida.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Não existe instalador para este sistema.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Não foi possível iniciar o instalador.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>A bateria está quase vazia.
Ligue o tablet ao carregador. Depois, a calibração poderá ser guardada na câmara.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Outro programa impede o arranque deste.
Desligue o tablet e volte a ligá-lo.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: lida de volta, a %2° da calibração anterior.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Calibração da câmara</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Vá para o exterior, sob luz solar intensa.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Aponte para edifícios ou árvores, próximos ou distantes. Mova, pare, e até oito fotografias são tiradas automaticamente.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Verifique o resultado com um dedo e guarde-o na câmara.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Demora cerca de três minutos.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Demora cerca de cinco minutos para ambas as câmaras.</translation>
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
        <translation>Sair sem guardar?
As fotografias e o resultado obtido até agora serão perdidos. A câmara mantém a calibração antiga.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Ficar</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Guardar 1.ª câmara</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Regresse a um local bem iluminado.
Continua automaticamente. As fotografias já tiradas contam.</translation>
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
        <translation>Suficiente a partir da marca</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Continua automaticamente dentro de momentos.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Faltam detalhes aqui</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Detalhes suficientes</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Rode agora para aqui</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>A abrir a câmara…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Pode demorar meio minuto depois de o tablet ser ligado.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>A câmara ainda não responde. Feche outros programas que a utilizem, ou prima Sair e inicie o programa novamente.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>A câmara de profundidade não foi encontrada.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Feche todos os outros programas que utilizem uma câmara.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Desligue o tablet e volte a ligá-lo.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Inicie novamente a calibração. Se a câmara continuar em falta, o tablet necessita de assistência.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>A câmara traseira não foi encontrada.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Verifique nas definições de privacidade do sistema se os programas podem utilizar a câmara.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Verifique no gestor de dispositivos se a câmara traseira está ativada.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Inicie novamente a calibração.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>A câmara traseira não fornece imagem.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Feche todos os outros programas que utilizem a câmara traseira.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Certifique-se de que nada tapa a câmara.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Inicie novamente a calibração. O resultado obtido até agora não está guardado.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Inicie novamente a calibração. A calibração da primeira câmara pode ser guardada ao sair.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Pouca profundidade visível. Aponte para algo a alguns metros de distância.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Calibração guardada</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Manter premido para comparar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Nenhuma aresta vertical visível. Aponte para um tronco, um poste ou a esquina de uma casa.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Normalmente já coincide. Arraste apenas se as linhas estiverem ao lado das arestas.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Recomeçar?
As fotografias e o resultado obtido até agora serão perdidos.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>A guardar a calibração na câmara…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Aguarde e não desligue o tablet.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>O programa fecha automaticamente ou quando tocar no ecrã.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Pronto para tirar fotografias.
Aponte para edifícios ou árvores, sob luz solar intensa.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Como mover o tablet</translation>
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
        <translation>Exemplo</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Normalmente já coincide.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Cada cor é uma distância. As linhas brancas devem ficar sobre as arestas dos objetos.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Só se ficarem ao lado, arraste para a esquerda ou para a direita até coincidirem.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>A versão %1 está disponível.
É transferida e instalada em poucos minutos. Depois, o programa fecha e reinicia automaticamente.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>A transferir a versão %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>A ligação perdeu-se. A tentar novamente…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 de %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>A ligar…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>A iniciar a instalação…
O programa fecha agora e reinicia automaticamente.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>A atualização não foi concluída.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Esta versão continua a funcionar como antes.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>A primeira câmera está pronta. Agora, a segunda.
Vire-se para outro cenário.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Se você sair agora, poderá salvar a calibração da primeira câmera.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Se você sair agora, nada será salvo.</translation>
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
        <translation>Foto %1 tirada.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Como se mover</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Em pausa. Nenhuma foto é tirada.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>A foto %1 não trouxe nada de novo. Gire mais.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>A foto %1 não acrescentou nada: tem poucos detalhes.</translation>
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
        <translation>Uma nova calibração foi encontrada.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>A câmera em cores girou %1 desde a calibração salva:</translation>
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
        <translation>Agora, confira-a na imagem. Ela só é salva quando você a aceitar.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Desvio nas fotos: %1 px com a calibração salva, %2 px com a nova.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>A calibração salva ainda serve.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>A rotação da câmera em cores é excepcionalmente grande.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Uma rotação sozinha não explica as fotos. A câmera pode precisar de assistência técnica.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Manter a calibração salva</translation>
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
        <translation>Desvio nas fotos</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Não salva</translation>
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
        <translation>Como se mover</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Aponte para um cenário rico em detalhes.
Prédios e árvores são adequados, próximos ou distantes. Grama, céu e paredes lisas são uniformes demais. Mantenha pelo menos dois passos de distância.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Gire para outra direção.
Gire um pouco o tablet para o lado, para cima ou para baixo, para que os detalhes fiquem em outro ponto da imagem.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Pare até a tela piscar.
Mantenha o tablet parado por um momento. A foto é tirada automaticamente. Depois, gire novamente.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Pare para tirar uma foto de calibração.</translation>
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
Vá para um local externo claro e ensolarado.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Luz solar suficiente</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Aqui há luz suficiente!
Pressione Continuar.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Câmera em cores</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Primeira câmera em cores</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Segunda câmera em cores</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Alinhe a imagem de profundidade colorida com a imagem em cores.
Pressione Continuar para aceitar a calibração da câmera em cores, ou Recomeçar para voltar ao início.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Alinhe a imagem de profundidade colorida com a imagem em cores.
Pressione Continuar para aceitar a calibração da primeira câmera em cores, ou Recomeçar para voltar ao início.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Alinhe a imagem de profundidade colorida com a imagem em cores.
Pressione Continuar para aceitar a calibração da segunda câmera em cores, ou Recomeçar para voltar ao início.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>A calibração está salva na câmera.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>A última calibração não foi salva na câmera.
Calibre novamente.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Última calibração em %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>A câmera não contém a última calibração nem a anterior.
Calibre novamente.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Mova o dispositivo para tirar outra foto de calibração.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>A calibração não está funcionando porque o cenário destas fotos é uniforme demais.
Tente novamente. Aponte para um cenário variado, como prédios ou árvores.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>A câmera informou que salvou a calibração, mas não o fez</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>As imagens da câmera não correspondem à nova calibração</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>A câmera não responde</translation>
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
        <translation>Ocorreu um problema grave com a câmera Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Feche todos os aplicativos Tarnex Deepvane e todos os navegadores da Web antes de continuar.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>O firmware da sua câmera Tarnex Deepvane precisa ser atualizado antes que este aplicativo possa ser executado. Atualize o firmware e execute o aplicativo novamente.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Ocorreu um erro desconhecido.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>A conexão foi interrompida e não pôde ser restabelecida.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>O servidor de download não fornece o que era esperado.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Não foi possível gravar o download no disco.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>O download estava danificado e foi removido.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Esta é uma versão de desenvolvimento sem assinatura. Ela não inicia nenhum instalador.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>O download não está assinado pelo fabricante deste programa e foi removido.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Não há instalador para este sistema.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Não foi possível iniciar o instalador.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>A bateria está quase vazia.
Conecte o tablet ao carregador. Depois, a calibração poderá ser salva na câmera.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Outro programa impede o início deste.
Desligue o tablet e ligue-o novamente.</translation>
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
        <translation>Calibração da câmera</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Vá para fora, sob luz solar intensa.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Aponte para prédios ou árvores, próximos ou distantes. Mova, pare, e até oito fotos são tiradas automaticamente.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Confira o resultado com um dedo e salve-o na câmera.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Leva cerca de três minutos.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Leva cerca de cinco minutos para as duas câmeras.</translation>
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
        <translation>Sair sem salvar?
As fotos e o resultado obtido até agora serão perdidos. A câmera mantém a calibração antiga.</translation>
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
        <translation>Salvar 1ª câmera</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Volte para um local bem iluminado.
O processo continua automaticamente. As fotos já tiradas contam.</translation>
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
        <translation>O processo continua automaticamente em instantes.</translation>
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
        <translation>Gire agora para cá</translation>
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
        <translation>Abrindo a câmera…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Isso pode levar meio minuto depois que o tablet é ligado.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>A câmera ainda não responde. Feche outros programas que a utilizam, ou pressione Sair e inicie o programa novamente.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>A câmera de profundidade não foi encontrada.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Feche todos os outros programas que usam uma câmera.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Desligue o tablet e ligue-o novamente.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Inicie a calibração novamente. Se a câmera continuar ausente, o tablet precisa de assistência técnica.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>A câmera traseira não foi encontrada.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Verifique nas configurações de privacidade do sistema se os programas podem usar a câmera.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Verifique no gerenciador de dispositivos se a câmera traseira está ativada.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Inicie a calibração novamente.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>A câmera traseira não fornece imagem.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Feche todos os outros programas que usam a câmera traseira.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Verifique se nada está cobrindo a câmera.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Inicie a calibração novamente. O resultado obtido até agora não foi salvo.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Inicie a calibração novamente. A calibração da primeira câmera pode ser salva ao sair.</translation>
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
        <translation>Calibração salva</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Segure para comparar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Nenhuma borda vertical visível. Aponte para um tronco, um poste ou a esquina de uma casa.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Normalmente já coincide. Arraste apenas se as linhas estiverem ao lado das bordas.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Recomeçar?
As fotos e o resultado obtido até agora serão perdidos.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Salvando a calibração na câmera…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Aguarde e não desligue o tablet.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>O programa fecha automaticamente ou quando você tocar na tela.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Pronto para tirar fotos.
Aponte para prédios ou árvores, sob luz solar intensa.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Como se mover</translation>
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
        <translation>Cada cor é uma distância. As linhas brancas devem ficar sobre as bordas dos objetos.</translation>
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
Ela é baixada e instalada em poucos minutos. Depois, o programa fecha e reinicia automaticamente.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Baixando a versão %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>A conexão foi perdida. Tentando novamente…</translation>
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
        <translation>Iniciando a instalação…
O programa fecha agora e reinicia automaticamente.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>A atualização não foi concluída.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Esta versão continua funcionando como antes.</translation>
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

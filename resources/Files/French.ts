<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>La première caméra est terminée. Passons à la deuxième.
Tournez-vous vers un autre décor.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Si vous quittez maintenant, vous pouvez enregistrer l’étalonnage de la première caméra.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Si vous quittez maintenant, rien n’est enregistré.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Photo %1 prise.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Comment bouger</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>En pause. Aucune photo n’est prise.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>La photo %1 n’a rien apporté de nouveau. Tournez davantage.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>La photo %1 n’a rien apporté&#xa0;: trop peu de détails.</translation>
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
        <translation>Un nouvel étalonnage a été trouvé.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>La caméra couleur a tourné de %1 depuis l’étalonnage enregistré&#xa0;:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>vers la droite</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>vers la gauche</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>vers le haut</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>vers le bas</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>inclinée dans le sens horaire</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>inclinée dans le sens antihoraire</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Vérifiez-le maintenant sur l’image. Il n’est enregistré que si vous l’acceptez.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Écart dans les photos&#xa0;: %1&#xa0;px avec l’étalonnage enregistré, %2&#xa0;px avec le nouveau.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>L’étalonnage enregistré convient toujours.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>La rotation de la caméra couleur est inhabituellement grande.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Une rotation seule n’explique pas les photos. La caméra doit peut-être être réparée.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Garder l’étalonnage enregistré</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Écart dans les photos</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Rapports : %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Comment bouger</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Visez un paysage riche en détails.
Les bâtiments et les arbres conviennent bien, proches ou éloignés. L’herbe, le ciel et les murs nus sont trop uniformes. Gardez une distance d’au moins deux pas.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Tournez dans une autre direction.
Tournez un peu la tablette sur le côté, vers le haut ou vers le bas, afin que les détails se trouvent ailleurs dans l’image.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Ne bougez plus jusqu’au flash.
Tenez la tablette immobile un instant. La photo est prise automatiquement. Tournez ensuite à nouveau.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Ne bougez plus pour prendre une photo d’étalonnage.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Lumière du soleil requise</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>La lumière du soleil est insuffisante.
Allez à l’extérieur, dans un endroit clair et ensoleillé.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Lumière suffisante</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Il fait assez clair ici&#x202f;!
Appuyez sur Continuer.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Caméra couleur</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Première caméra couleur</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Deuxième caméra couleur</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Alignez l’image de profondeur colorée sur l’image couleur.
Appuyez sur Continuer pour accepter l’étalonnage de la caméra couleur, ou sur Recommencer pour repartir du début.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Alignez l’image de profondeur colorée sur l’image couleur.
Appuyez sur Continuer pour accepter l’étalonnage de la première caméra couleur, ou sur Recommencer pour repartir du début.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Alignez l’image de profondeur colorée sur l’image couleur.
Appuyez sur Continuer pour accepter l’étalonnage de la deuxième caméra couleur, ou sur Recommencer pour repartir du début.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>L’étalonnage est enregistré dans la caméra.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Le dernier étalonnage n’a pas été enregistré dans la caméra.
Veuillez recommencer l’étalonnage.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Dernier étalonnage le %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>La caméra ne contient ni le dernier étalonnage ni le précédent.
Veuillez recommencer l’étalonnage.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Tournez l’appareil pour prendre une autre photo d’étalonnage.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>L’étalonnage échoue car le paysage sur ces photos est trop uniforme.
Réessayez. Visez un paysage varié, avec des bâtiments ou des arbres.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>La caméra a annoncé avoir enregistré l’étalonnage, mais elle ne l’a pas fait</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Les images de la caméra ne correspondent pas au nouvel étalonnage</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>La caméra ne répond pas</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Un appel KXAPI a échoué.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>L’appareil n’a pas été étalonné ou ses données d’étalonnage ne sont pas valides.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Un problème grave est survenu avec la caméra Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Veuillez fermer toutes les applications Tarnex Deepvane et tous les navigateurs web avant de continuer.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Le micrologiciel de votre caméra Tarnex Deepvane doit être mis à jour avant l’exécution de cette application. Veuillez le mettre à jour, puis relancer l’application.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Une erreur inconnue est survenue.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>La connexion a été interrompue et n’a pas pu être rétablie.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Le serveur de téléchargement ne fournit pas ce qui est attendu.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Le téléchargement n’a pas pu être enregistré sur le disque.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Le téléchargement était endommagé et a été supprimé.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Ceci est une version de développement sans signature. Elle ne lance aucun programme d’installation.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Le téléchargement n’est pas signé par l’éditeur de ce programme et a été supprimé.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Il n’existe pas de programme d’installation pour ce système.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Le programme d’installation n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>La batterie est presque vide.
Branchez la tablette sur son chargeur. L’étalonnage pourra alors être enregistré dans la caméra.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Un autre programme empêche celui-ci de démarrer.
Éteignez puis rallumez la tablette.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1&#xa0;: relue, à %2° de l’étalonnage précédent.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Étalonnage de la caméra</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Allez à l’extérieur, en plein soleil.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Visez des bâtiments ou des arbres, proches ou éloignés. Tournez, arrêtez-vous&#xa0;: jusqu’à huit photos sont prises automatiquement.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Vérifiez le résultat d’un doigt, puis enregistrez-le dans la caméra.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Dure environ trois minutes.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Dure environ cinq minutes pour les deux caméras.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Quitter sans enregistrer&#x202f;?
Les photos et le résultat obtenu seront perdus. La caméra conserve son ancien étalonnage.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Rester</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Enregistrer la 1re caméra</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Revenez dans un endroit bien éclairé.
La suite est automatique. Les photos déjà prises comptent.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Lumière</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Suffisante à partir du repère</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>La suite est automatique dans un instant.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Détails manquants ici</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Assez de détails</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Tournez ensuite par là</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Ouverture de la caméra…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Cela peut durer une demi-minute après la mise sous tension de la tablette.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>La caméra ne répond pas encore. Fermez les autres programmes qui l’utilisent, ou appuyez sur Quitter et relancez le programme.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>La caméra de profondeur est introuvable.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Fermez tous les autres programmes qui utilisent une caméra.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Éteignez puis rallumez la tablette.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Relancez l’étalonnage. Si la caméra reste introuvable, la tablette doit être réparée.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>La caméra arrière est introuvable.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Vérifiez dans les paramètres de confidentialité du système que les programmes peuvent utiliser la caméra.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Vérifiez dans le gestionnaire de périphériques que la caméra arrière est activée.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Relancez l’étalonnage.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>La caméra arrière ne fournit aucune image.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Fermez tous les autres programmes qui utilisent la caméra arrière.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Assurez-vous que rien ne masque la caméra.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Relancez l’étalonnage. Le résultat obtenu jusqu’ici n’est pas enregistré.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Relancez l’étalonnage. L’étalonnage de la première caméra peut être enregistré en quittant.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Trop peu de profondeur visible. Visez quelque chose à quelques mètres.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Étalonnage enregistré</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Maintenir pour comparer</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Aucun bord vertical visible. Visez un tronc d’arbre, un poteau ou l’angle d’une maison.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>En général, c’est déjà juste. Ne faites glisser que si les lignes sont à côté des bords.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Recommencer&#x202f;?
Les photos et le résultat obtenu seront perdus.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Enregistrement de l’étalonnage dans la caméra…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Veuillez patienter et ne pas éteindre la tablette.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Le programme se ferme automatiquement, ou dès que vous touchez l’écran.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Prêt à prendre des photos.
Visez des bâtiments ou des arbres, en plein soleil.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Comment bouger</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
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
        <translation>Exemple</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>En général, c’est déjà juste.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Chaque couleur est une distance. Les lignes blanches doivent suivre les bords des objets.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Seulement si elles sont à côté, faites glisser vers la gauche ou la droite jusqu’à ce qu’elles coïncident.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>La version %1 est disponible.
Elle est téléchargée et installée en quelques minutes. Le programme se ferme ensuite et redémarre automatiquement.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Téléchargement de la version %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>La connexion a été perdue. Nouvelle tentative…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 sur %2 Mo</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Lancement de l’installation…
Le programme se ferme maintenant et redémarre automatiquement.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>La mise à jour a échoué.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Cette version continue de fonctionner comme avant.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
</context>
</TS>

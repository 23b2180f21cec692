<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Η πρώτη κάμερα είναι έτοιμη. Τώρα η δεύτερη.
Στραφείτε σε άλλο τοπίο.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Αν κλείσετε τώρα, μπορείτε να αποθηκεύσετε τη βαθμονόμηση της πρώτης κάμερας.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Αν κλείσετε τώρα, δεν αποθηκεύεται τίποτα.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Συνέχεια</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Λήφθηκε η φωτογραφία %1.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Κίνηση του tablet</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Από την αρχή</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Σε παύση. Δεν λαμβάνονται φωτογραφίες.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Η φωτογραφία %1 δεν έφερε κάτι νέο. Στρέψτε περισσότερο.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Η φωτογραφία %1 δεν ωφέλησε: έχει πολύ λίγες λεπτομέρειες.</translation>
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
        <translation>Βρέθηκε νέα βαθμονόμηση.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Η έγχρωμη κάμερα έχει στραφεί κατά %1 σε σχέση με την αποθηκευμένη βαθμονόμηση:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>προς τα δεξιά</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>προς τα αριστερά</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>προς τα πάνω</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>προς τα κάτω</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>δεξιόστροφη κλίση</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>αριστερόστροφη κλίση</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Τώρα ελέγξτε την στην εικόνα. Αποθηκεύεται μόνο όταν την αποδεχτείτε.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Συνέχεια</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Απόκλιση στις φωτογραφίες: %1 px με την αποθηκευμένη βαθμονόμηση, %2 px με τη νέα.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Η αποθηκευμένη βαθμονόμηση εξακολουθεί να ισχύει.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Η έγχρωμη κάμερα έχει στραφεί ασυνήθιστα πολύ.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Μια στροφή μόνη της δεν εξηγεί τις φωτογραφίες. Η κάμερα ίσως χρειάζεται επισκευή.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Διατήρηση αποθηκευμένης</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Ιστορικό</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Στροφή</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Απόκλιση στις φωτογραφίες</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Αποθηκεύτηκε</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Δεν αποθηκεύτηκε</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Αναφορές: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Κίνηση του tablet</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Στρέψτε προς ένα τοπίο με πολλές λεπτομέρειες.
Τα κτίρια και τα δέντρα είναι κατάλληλα, κοντινά ή μακρινά. Το γρασίδι, ο ουρανός και οι γυμνοί τοίχοι είναι πολύ απλά. Κρατήστε απόσταση τουλάχιστον δύο βημάτων.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Στρέψτε σε άλλη κατεύθυνση.
Στρέψτε λίγο το tablet στο πλάι, πάνω ή κάτω, ώστε οι λεπτομέρειες να βρεθούν αλλού στην εικόνα.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Μείνετε ακίνητοι μέχρι να αναβοσβήσει η οθόνη.
Κρατήστε το tablet ακίνητο για λίγο. Η φωτογραφία λαμβάνεται αυτόματα. Έπειτα στρέψτε ξανά.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Επόμενο</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Σταματήστε για να ληφθεί φωτογραφία βαθμονόμησης.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Συνέχεια</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Απαιτείται ηλιακό φως</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Δεν υπάρχει αρκετό ηλιακό φως.
Βγείτε έξω, σε φωτεινό και ηλιόλουστο χώρο.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Επαρκές ηλιακό φως</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Εδώ έχει αρκετό φως!
Πατήστε «Συνέχεια».</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Έγχρωμη κάμερα</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Πρώτη έγχρωμη κάμερα</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Δεύτερη έγχρωμη κάμερα</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Ευθυγραμμίστε τη χρωματισμένη εικόνα βάθους με την έγχρωμη εικόνα.
Με «Συνέχεια» αποδέχεστε τη βαθμονόμηση της έγχρωμης κάμερας. Με «Από την αρχή» ξεκινάτε ξανά.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Ευθυγραμμίστε τη χρωματισμένη εικόνα βάθους με την έγχρωμη εικόνα.
Με «Συνέχεια» αποδέχεστε τη βαθμονόμηση της πρώτης έγχρωμης κάμερας. Με «Από την αρχή» ξεκινάτε ξανά.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Ευθυγραμμίστε τη χρωματισμένη εικόνα βάθους με την έγχρωμη εικόνα.
Με «Συνέχεια» αποδέχεστε τη βαθμονόμηση της δεύτερης έγχρωμης κάμερας. Με «Από την αρχή» ξεκινάτε ξανά.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Η βαθμονόμηση έχει αποθηκευτεί στην κάμερα.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Η τελευταία βαθμονόμηση δεν αποθηκεύτηκε στην κάμερα.
Εκτελέστε ξανά τη βαθμονόμηση.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Τελευταία βαθμονόμηση στις %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Η κάμερα δεν περιέχει ούτε την τελευταία ούτε την προηγούμενη βαθμονόμηση.
Εκτελέστε ξανά τη βαθμονόμηση.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Μετακινήστε τη συσκευή για να ληφθεί άλλη φωτογραφία βαθμονόμησης.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Η βαθμονόμηση δεν πετυχαίνει, επειδή το τοπίο σε αυτές τις φωτογραφίες είναι πολύ απλό.
Δοκιμάστε ξανά. Στρέψτε προς ένα τοπίο με πολλές λεπτομέρειες, όπως κτίρια ή δέντρα.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Η κάμερα ανέφερε ότι αποθήκευσε τη βαθμονόμηση, αλλά δεν το έκανε</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Οι εικόνες της κάμερας δεν ταιριάζουν με τη νέα βαθμονόμηση</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Η κάμερα δεν αποκρίνεται</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Μια κλήση KXAPI απέτυχε.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Η συσκευή δεν έχει βαθμονομηθεί ή έχει μη έγκυρα δεδομένα βαθμονόμησης.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Παρουσιάστηκε σοβαρό πρόβλημα με την κάμερα Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Κλείστε όλες τις εφαρμογές Tarnex Deepvane και όλα τα προγράμματα περιήγησης πριν συνεχίσετε.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Το υλικολογισμικό της κάμερας Tarnex Deepvane πρέπει να ενημερωθεί πριν εκτελεστεί αυτή η εφαρμογή. Ενημερώστε το υλικολογισμικό και εκτελέστε ξανά την εφαρμογή.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Παρουσιάστηκε άγνωστο σφάλμα.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Η σύνδεση διακόπηκε και δεν ήταν δυνατή η αποκατάστασή της.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Ο διακομιστής λήψεων δεν παρέχει αυτό που αναμενόταν.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση της λήψης στον δίσκο.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Το αρχείο λήψης ήταν κατεστραμμένο και διαγράφηκε.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Αυτή είναι έκδοση ανάπτυξης χωρίς υπογραφή. Δεν εκκινεί πρόγραμμα εγκατάστασης.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Το αρχείο λήψης δεν είναι υπογεγραμμένο από τον κατασκευαστή αυτού του προγράμματος και διαγράφηκε.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Δεν υπάρχει πρόγραμμα εγκατάστασης για αυτό το σύστημα.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Δεν ήταν δυνατή η εκκίνηση του προγράμματος εγκατάστασης.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Η μπαταρία είναι σχεδόν άδεια.
Συνδέστε το tablet στον φορτιστή. Έπειτα η βαθμονόμηση μπορεί να αποθηκευτεί στην κάμερα.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Ένα άλλο πρόγραμμα εμποδίζει την εκκίνηση αυτού του προγράμματος.
Απενεργοποιήστε το tablet και ενεργοποιήστε το ξανά.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: διαβάστηκε ξανά, %2° από την προηγούμενη βαθμονόμηση.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Βαθμονόμηση κάμερας</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Βγείτε έξω σε έντονο ηλιακό φως.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Στρέψτε προς κτίρια ή δέντρα, κοντινά ή μακρινά. Μετακινήστε το tablet και σταματήστε· λαμβάνονται αυτόματα έως οκτώ φωτογραφίες.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Ελέγξτε το αποτέλεσμα με ένα δάχτυλο και αποθηκεύστε το στην κάμερα.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Διαρκεί περίπου τρία λεπτά.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Διαρκεί περίπου πέντε λεπτά και για τις δύο κάμερες.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Έναρξη</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Έξοδος χωρίς αποθήκευση;
Οι φωτογραφίες και το αποτέλεσμα μέχρι τώρα θα χαθούν. Η κάμερα διατηρεί την παλιά βαθμονόμηση.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Παραμονή</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Αποθήκευση 1ης κάμερας</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Επιστρέψτε σε καλά φωτισμένο χώρο.
Η διαδικασία συνεχίζεται αυτόματα. Οι φωτογραφίες που λήφθηκαν μετρούν.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Φως</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Αρκετό φως από το σημάδι και πέρα</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Συνεχίζει αυτόματα σε λίγο.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Λείπουν λεπτομέρειες εδώ</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Αρκετές λεπτομέρειες</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Στρέψτε τώρα προς τα εδώ</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Άνοιγμα της κάμερας…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Μπορεί να διαρκέσει μισό λεπτό μετά την ενεργοποίηση του tablet.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Η κάμερα δεν αποκρίνεται ακόμη. Κλείστε άλλα προγράμματα που τη χρησιμοποιούν ή πατήστε «Έξοδος» και ξεκινήστε ξανά το πρόγραμμα.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Η κάμερα βάθους δεν βρέθηκε.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Κλείστε όλα τα άλλα προγράμματα που χρησιμοποιούν κάμερα.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Απενεργοποιήστε το tablet και ενεργοποιήστε το ξανά.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Ξεκινήστε ξανά τη βαθμονόμηση. Αν η κάμερα εξακολουθεί να λείπει, το tablet χρειάζεται επισκευή.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Η πίσω κάμερα δεν βρέθηκε.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Ελέγξτε στις ρυθμίσεις απορρήτου του συστήματος ότι τα προγράμματα επιτρέπεται να χρησιμοποιούν την κάμερα.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Ελέγξτε στη Διαχείριση Συσκευών ότι η πίσω κάμερα είναι ενεργοποιημένη.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Ξεκινήστε ξανά τη βαθμονόμηση.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Η πίσω κάμερα δεν δίνει εικόνα.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Κλείστε όλα τα άλλα προγράμματα που χρησιμοποιούν την πίσω κάμερα.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Βεβαιωθείτε ότι τίποτα δεν καλύπτει την κάμερα.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Ξεκινήστε ξανά τη βαθμονόμηση. Το αποτέλεσμα μέχρι τώρα δεν έχει αποθηκευτεί.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Ξεκινήστε ξανά τη βαθμονόμηση. Η βαθμονόμηση της πρώτης κάμερας μπορεί να αποθηκευτεί κατά την έξοδο.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Πολύ λίγο βάθος στην εικόνα. Στρέψτε προς κάτι σε απόσταση λίγων μέτρων.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Αποθηκευμένη βαθμονόμηση</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Από την αρχή</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Κρατήστε πατημένο για σύγκριση</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Συνέχεια</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Δεν υπάρχει όρθια ακμή στην εικόνα. Στρέψτε προς κορμό δέντρου, στύλο ή γωνία σπιτιού.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Συνήθως ταιριάζει ήδη. Σύρετε μόνο αν οι γραμμές βρίσκονται δίπλα στις ακμές.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Από την αρχή;
Οι φωτογραφίες και το αποτέλεσμα μέχρι τώρα θα χαθούν.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Η βαθμονόμηση αποθηκεύεται στην κάμερα…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Περιμένετε και μην απενεργοποιήσετε το tablet.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Το πρόγραμμα κλείνει αυτόματα ή όταν αγγίξετε την οθόνη.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Έτοιμο για λήψη φωτογραφιών.
Στρέψτε προς κτίρια ή δέντρα, σε έντονο ηλιακό φως.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Κίνηση του tablet</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Έναρξη</translation>
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
        <translation>Παράδειγμα</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Συνέχεια</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Συνήθως ταιριάζει ήδη.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Κάθε χρώμα είναι μια απόσταση. Οι λευκές γραμμές πρέπει να βρίσκονται στις ακμές των πραγμάτων.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Μόνο αν βρίσκονται δίπλα, σύρετε αριστερά ή δεξιά μέχρι να ταιριάξουν.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Η έκδοση %1 είναι διαθέσιμη.
Η λήψη και η εγκατάσταση διαρκούν λίγα λεπτά. Έπειτα το πρόγραμμα κλείνει και ξεκινά ξανά αυτόματα.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Λήψη της έκδοσης %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Η σύνδεση χάθηκε. Γίνεται νέα προσπάθεια…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 από %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Σύνδεση…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Έναρξη της εγκατάστασης…
Το πρόγραμμα κλείνει τώρα και ξεκινά ξανά αυτόματα.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Η ενημέρωση δεν ολοκληρώθηκε.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Αυτή η έκδοση συνεχίζει να λειτουργεί όπως πριν.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Αργότερα</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Ενημέρωση</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>اكتملت الكاميرا الأولى. والآن الثانية.
استدر نحو مشهد آخر.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>إذا خرجت الآن، يمكنك تخزين معايرة الكاميرا الأولى.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>إذا خرجت الآن، فلن يُخزَّن أي شيء.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>تم التقاط الصورة %1.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>كيفية التحريك</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>إعادة البدء</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>متوقف مؤقتًا. لا تُلتقط صور.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>لم تُضف الصورة %1 جديدًا. استدر أكثر.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>لم تُفد الصورة %1: تفاصيلها قليلة للغاية.</translation>
    </message>
</context>
<context>
    <name>CorrectionReadout</name>
    <message>
        <source>%1°</source>
        <translation>‏%1°</translation>
    </message>
</context>
<context>
    <name>FoundScreen</name>
    <message>
        <source>%1°</source>
        <translation>‏%1°</translation>
    </message>
    <message>
        <source>A new calibration was found.</source>
        <translation>تم العثور على معايرة جديدة.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>دارت الكاميرا الملونة بمقدار %1 منذ المعايرة المخزّنة:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>إلى اليمين</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>إلى اليسار</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>إلى الأعلى</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>إلى الأسفل</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>مائلة باتجاه عقارب الساعة</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>مائلة عكس اتجاه عقارب الساعة</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>تحقق منها الآن على الصورة. لا يتم تخزينها إلا عند قبولها.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>الإزاحة في الصور: %1 بكسل بالمعايرة المخزّنة، و%2 بكسل بالمعايرة الجديدة.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>المعايرة المخزّنة لا تزال مناسبة.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>دارت الكاميرا الملونة بمقدار كبير غير معتاد.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>الدوران وحده لا يفسّر الصور. قد تحتاج الكاميرا إلى صيانة.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>الإبقاء على المعايرة المخزّنة</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>مقدار الدوران</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>الإزاحة في الصور</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>مخزّنة</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>غير مخزّنة</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>التقارير: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>كيفية التحريك</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>وجّه الجهاز إلى مشهد غني بالتفاصيل.
المباني والأشجار مناسبة، قريبة كانت أم بعيدة. العشب والسماء والجدران الخالية قليلة التفاصيل. ابقَ على بُعد خطوتين على الأقل.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>استدر إلى اتجاه آخر.
أدر الجهاز اللوحي قليلاً إلى الجانب أو إلى الأعلى أو إلى الأسفل، بحيث تقع التفاصيل في مكان آخر من الصورة.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>توقف حتى تومض الشاشة.
ثبّت الجهاز اللوحي للحظة. تُلتقط الصورة تلقائيًا. ثم أدره مرة أخرى.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>توقف لالتقاط صورة معايرة.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>ضوء الشمس مطلوب</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>ضوء الشمس غير كافٍ.
اخرج إلى مكان مضيء ومشمس.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>ضوء الشمس كافٍ</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>الإضاءة كافية هنا!
اضغط على «متابعة».</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>الكاميرا الملونة</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>الكاميرا الملونة الأولى</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>الكاميرا الملونة الثانية</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>حاذِ ألوان صورة العمق مع صورة الكاميرا.
اضغط على «متابعة» لقبول معايرة الكاميرا الملونة، أو على «إعادة البدء» للبدء من جديد.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>حاذِ ألوان صورة العمق مع صورة الكاميرا.
اضغط على «متابعة» لقبول معايرة الكاميرا الملونة الأولى، أو على «إعادة البدء» للبدء من جديد.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>حاذِ ألوان صورة العمق مع صورة الكاميرا.
اضغط على «متابعة» لقبول معايرة الكاميرا الملونة الثانية، أو على «إعادة البدء» للبدء من جديد.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>تم تخزين المعايرة في الكاميرا.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>لم يتم تخزين المعايرة الأخيرة في الكاميرا.
يُرجى إجراء المعايرة مرة أخرى.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>آخر معايرة بتاريخ %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>لا تحتوي الكاميرا على المعايرة الأخيرة ولا على المعايرة السابقة.
يُرجى إجراء المعايرة مرة أخرى.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>حرّك الجهاز لالتقاط صورة معايرة أخرى.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>لا تنجح المعايرة لأن المشهد في هذه الصور قليل التفاصيل.
حاول مرة أخرى. وجّه الجهاز إلى مشهد غني بالتفاصيل مثل المباني أو الأشجار.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>أفادت الكاميرا بأنها خزّنت المعايرة، لكنها لم تفعل ذلك</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>صور الكاميرا لا تتوافق مع المعايرة الجديدة</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>لا تستجيب الكاميرا</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>فشل استدعاء KXAPI.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>لم تتم معايرة الجهاز أو أن بيانات المعايرة فيه غير صالحة.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>حدثت مشكلة خطيرة في كاميرا Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>يُرجى إغلاق كل تطبيقات Tarnex Deepvane وكل متصفحات الويب قبل المتابعة.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>تحتاج كاميرا Tarnex Deepvane إلى تحديث البرنامج الثابت قبل تشغيل هذا التطبيق. يُرجى تحديث البرنامج الثابت ثم تشغيل التطبيق مرة أخرى.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>حدث خطأ غير معروف.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>انقطع الاتصال ولم تتسنَّ إعادته.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>لا يقدّم خادم التنزيل ما هو متوقع منه.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>تعذّر حفظ التنزيل على القرص.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>كان التنزيل تالفًا وتمت إزالته.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>هذا إصدار تطوير بلا توقيع، ولا يشغّل أي برنامج تثبيت.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>التنزيل غير موقّع من الشركة المصنّعة لهذا البرنامج وتمت إزالته.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>لا يوجد برنامج تثبيت لهذا النظام.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>تعذّر تشغيل برنامج التثبيت.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>البطارية فارغة تقريبًا.
صِل الجهاز اللوحي بالشاحن. بعد ذلك يمكن تخزين المعايرة في الكاميرا.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>برنامج آخر يمنع بدء هذا البرنامج.
أوقف تشغيل الجهاز اللوحي ثم شغّله مرة أخرى.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: أُعيدت قراءتها، بفارق ‏%2° عن المعايرة السابقة.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>معايرة الكاميرا</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>اخرج إلى ضوء الشمس الساطع.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>وجّه الجهاز إلى مبانٍ أو أشجار، قريبة أو بعيدة. حرّكه ثم توقف، وستُلتقط تلقائيًا ثماني صور كحد أقصى.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>تحقق من النتيجة بإصبع واحد، وخزّنها في الكاميرا.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>يستغرق ذلك حوالي ثلاث دقائق.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>يستغرق ذلك حوالي خمس دقائق لكلتا الكاميرتين.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>هل تريد الخروج دون تخزين؟
ستُفقد الصور وما تم العثور عليه حتى الآن. تحتفظ الكاميرا بمعايرتها القديمة.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>البقاء</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>تخزين الكاميرا الأولى</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>عُد إلى منطقة جيدة الإضاءة.
ستتم المتابعة تلقائيًا. ستُستخدم الصور الملتقطة حتى الآن.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>الضوء</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>الضوء كافٍ بدءًا من العلامة</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>ستتم المتابعة تلقائيًا بعد لحظة.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>التفاصيل ناقصة هنا</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>تفاصيل كافية</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>استدر الآن في هذا الاتجاه</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>جارٍ فتح الكاميرا…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>قد يستغرق ذلك نصف دقيقة بعد تشغيل الجهاز اللوحي.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>لا تستجيب الكاميرا بعد. أغلق البرامج الأخرى التي تستخدمها، أو اضغط على «خروج» وابدأ البرنامج من جديد.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>لم يتم العثور على كاميرا العمق.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>أغلق كل البرامج الأخرى التي تستخدم كاميرا.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>أوقف تشغيل الجهاز اللوحي ثم شغّله مرة أخرى.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>ابدأ المعايرة من جديد. إذا ظلت الكاميرا مفقودة، فالجهاز اللوحي يحتاج إلى صيانة.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>لم يتم العثور على الكاميرا الخلفية.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>تحقق في إعدادات الخصوصية بالنظام من السماح للبرامج باستخدام الكاميرا.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>تحقق في إدارة الأجهزة من تشغيل الكاميرا الخلفية.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>ابدأ المعايرة من جديد.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>لا تقدّم الكاميرا الخلفية أي صورة.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>أغلق كل البرامج الأخرى التي تستخدم الكاميرا الخلفية.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>تأكد من عدم وجود ما يغطي الكاميرا.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>ابدأ المعايرة من جديد. لم يتم تخزين ما تم العثور عليه حتى الآن.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>ابدأ المعايرة من جديد. يمكن تخزين معايرة الكاميرا الأولى عند الخروج.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>العمق الظاهر قليل للغاية. وجّه الجهاز إلى شيء يبعد بضعة أمتار.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>المعايرة المخزّنة</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>إعادة البدء</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>استمر بالضغط للمقارنة</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>لا توجد حافة قائمة في الصورة. وجّه الجهاز إلى جذع شجرة أو عمود أو زاوية منزل.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>عادةً تكون متطابقة. لا تسحب إلا إذا وقعت الخطوط بجانب الحواف.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>هل تريد البدء من جديد؟
ستُفقد الصور وما تم العثور عليه حتى الآن.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>جارٍ تخزين المعايرة في الكاميرا…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>يُرجى الانتظار وعدم إيقاف تشغيل الجهاز اللوحي.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>سيُغلق البرنامج تلقائيًا، أو عند لمس الشاشة.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>جاهز لالتقاط الصور.
وجّه الجهاز إلى مبانٍ أو أشجار في ضوء الشمس الساطع.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>كيفية التحريك</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
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
        <translation>مثال</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>عادةً تكون متطابقة.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>كل لون يمثل مسافة. يجب أن تقع الخطوط البيضاء على حواف الأشياء.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>فقط إذا وقعت بجانبها، اسحب إلى اليسار أو اليمين حتى تتطابق.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>الإصدار %1 متوفر.
يتم تنزيله وتثبيته خلال بضع دقائق. ثم يُغلق البرنامج ويبدأ من جديد تلقائيًا.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>جارٍ تنزيل الإصدار %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>انقطع الاتصال. تجري المحاولة مرة أخرى…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 من %2 ميغابايت</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>جارٍ بدء التثبيت…
سيُغلق البرنامج الآن ويبدأ من جديد تلقائيًا.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>لم ينجح التحديث.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>يستمر هذا الإصدار في العمل كالسابق.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>تحديث</translation>
    </message>
</context>
</TS>

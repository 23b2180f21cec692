<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>המצלמה הראשונה מוכנה. כעת השנייה.
יש לפנות אל נוף אחר.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>ביציאה כעת אפשר לשמור את הכיול של המצלמה הראשונה.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>ביציאה כעת לא נשמר דבר.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>תמונה %1 צולמה.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>איך להזיז</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>התחלה מחדש</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>בהשהיה. לא מצולמות תמונות.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>תמונה %1 לא הוסיפה דבר. יש להסתובב עוד.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>תמונה %1 לא הועילה: יש בה מעט מדי פרטים.</translation>
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
        <translation>נמצא כיול חדש.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>מצלמת הצבע הסתובבה ב-%1 מאז הכיול השמור:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>ימינה</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>שמאלה</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>למעלה</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>למטה</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>נטויה עם כיוון השעון</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>נטויה נגד כיוון השעון</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>כעת יש לבדוק אותו מול התמונה. הוא נשמר רק לאחר אישורך.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>הסטייה בתמונות: %1 פיקסלים עם הכיול השמור, %2 פיקסלים עם הכיול החדש.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>הכיול השמור עדיין מתאים.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>מצלמת הצבע הסתובבה במידה חריגה.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>סיבוב לבדו אינו מסביר את התמונות. ייתכן שהמצלמה זקוקה לשירות.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>שמירה על הכיול הקיים</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>היסטוריה</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>סיבוב</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>הסטייה בתמונות</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>נשמר</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>לא נשמר</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>דוחות: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>איך להזיז</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>יש לכוון אל נוף עשיר בפרטים.
בניינים ועצים מתאימים, קרובים או רחוקים. דשא, שמיים וקירות חשופים פשוטים מדי. יש לשמור מרחק של שני צעדים לפחות.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>יש לפנות לכיוון אחר.
יש לסובב מעט את הטאבלט הצידה, למעלה או למטה, כך שהפרטים יופיעו במקום אחר בתמונה.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>יש לעצור עד להבזק.
יש להחזיק את הטאבלט ללא תזוזה לרגע. התמונה מצולמת אוטומטית. לאחר מכן יש לסובב שוב.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>סיום</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>הבא</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>יש לעצור כדי לצלם תמונת כיול.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>נדרש אור שמש</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>אין מספיק אור שמש.
יש לצאת אל אזור בהיר ושטוף שמש.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>יש מספיק אור שמש</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>יש כאן מספיק אור!
יש ללחוץ על &quot;המשך&quot;.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>מצלמת צבע</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>מצלמת צבע ראשונה</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>מצלמת צבע שנייה</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>יש ליישר את תמונת העומק הצבעונית עם תמונת הצבע.
לאישור הכיול של מצלמת הצבע יש ללחוץ על &quot;המשך&quot;. כדי להתחיל מההתחלה יש ללחוץ על &quot;התחלה מחדש&quot;.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>יש ליישר את תמונת העומק הצבעונית עם תמונת הצבע.
לאישור הכיול של מצלמת הצבע הראשונה יש ללחוץ על &quot;המשך&quot;. כדי להתחיל מההתחלה יש ללחוץ על &quot;התחלה מחדש&quot;.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>יש ליישר את תמונת העומק הצבעונית עם תמונת הצבע.
לאישור הכיול של מצלמת הצבע השנייה יש ללחוץ על &quot;המשך&quot;. כדי להתחיל מההתחלה יש ללחוץ על &quot;התחלה מחדש&quot;.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>הכיול נשמר במצלמה.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>הכיול האחרון לא נשמר במצלמה.
יש לכייל שוב.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>הכיול האחרון: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>המצלמה אינה מכילה את הכיול האחרון וגם לא את הכיול הקודם.
יש לכייל שוב.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>יש להזיז את המכשיר כדי לצלם תמונת כיול אחרת.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>הכיול אינו מצליח כי הנוף בתמונות אלה פשוט מדי.
יש לנסות שוב. יש לכוון אל נוף מגוון, כמו בניינים או עצים.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>המצלמה דיווחה שהכיול נשמר, אך הוא לא נשמר</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>התמונות של המצלמה אינן תואמות לכיול החדש</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>המצלמה אינה מגיבה</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>הקריאה ל-KXAPI נכשלה.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>המכשיר לא כויל או שנתוני הכיול שלו אינם חוקיים.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>אירעה תקלה חמורה במצלמת Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>יש לסגור את כל יישומי Tarnex Deepvane ואת כל דפדפני האינטרנט לפני שממשיכים.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>יש לעדכן את הקושחה של מצלמת Tarnex Deepvane לפני שניתן להפעיל יישום זה. יש לעדכן את הקושחה ולהפעיל שוב את היישום.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>אירעה שגיאה לא ידועה.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>החיבור נותק ולא ניתן היה לחדש אותו.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>שרת ההורדות אינו מספק את מה שצפוי ממנו.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>לא ניתן היה לשמור את ההורדה בדיסק.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>ההורדה הייתה פגומה והוסרה.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>זוהי גרסת פיתוח ללא חתימה. היא אינה מפעילה תוכנית התקנה.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>ההורדה אינה חתומה בידי יצרן התוכנית והוסרה.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>אין תוכנית התקנה למערכת זו.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>לא ניתן היה להפעיל את תוכנית ההתקנה.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>הסוללה כמעט ריקה.
יש לחבר את הטאבלט למטען. לאחר מכן ניתן לשמור את הכיול במצלמה.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>תוכנית אחרת מונעת את הפעלת התוכנית הזאת.
יש לכבות את הטאבלט ולהפעיל אותו שוב.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: נקראה חזרה, %2° מהכיול הקודם.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>כיול המצלמה</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>יש לצאת החוצה לאור שמש חזק.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>יש לכוון אל בניינים או עצים, קרובים או רחוקים, להזיז ולעצור. עד שמונה תמונות מצולמות אוטומטית.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>יש לבדוק את התוצאה באצבע אחת ולשמור אותה במצלמה.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>נמשך כשלוש דקות.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>נמשך כחמש דקות לשתי המצלמות.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>התחלה</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>לצאת בלי לשמור?
התמונות ומה שנמצא עד כה יאבדו. הכיול הישן יישאר במצלמה.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>הישארות</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>שמירת המצלמה הראשונה</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>יש לחזור אל אזור מואר היטב.
התהליך ימשיך אוטומטית. התמונות שצולמו עד כה ייכללו בכיול.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>אור</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>מהסימון ואילך יש מספיק אור</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>התהליך ימשיך אוטומטית בעוד רגע.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>חסרים כאן פרטים</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>די פרטים</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>כעת יש לפנות לכאן</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>יציאה</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>המצלמה נפתחת…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>זה עשוי להימשך חצי דקה לאחר הפעלת הטאבלט.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>המצלמה עדיין אינה מגיבה. יש לסגור תוכניות אחרות שמשתמשות בה, או ללחוץ על &quot;יציאה&quot; ולהפעיל שוב את התוכנית.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>מצלמת העומק לא נמצאה.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>יש לסגור כל תוכנית אחרת שמשתמשת במצלמה.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>יש לכבות את הטאבלט ולהפעיל אותו שוב.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>יש להפעיל שוב את הכיול. אם המצלמה עדיין חסרה, הטאבלט זקוק לשירות.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>המצלמה האחורית לא נמצאה.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>יש לבדוק בהגדרות הפרטיות של המערכת שתוכניות רשאיות להשתמש במצלמה.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>יש לבדוק במנהל ההתקנים שהמצלמה האחורית מופעלת.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>יש להפעיל שוב את הכיול.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>המצלמה האחורית אינה מספקת תמונה.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>יש לסגור כל תוכנית אחרת שמשתמשת במצלמה האחורית.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>יש לוודא שדבר אינו מכסה את המצלמה.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>יש להפעיל שוב את הכיול. מה שנמצא עד כה אינו שמור.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>יש להפעיל שוב את הכיול. ניתן לשמור את כיול המצלמה הראשונה בעת היציאה.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>מעט מדי עומק בתמונה. יש לכוון אל משהו במרחק מטרים ספורים.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>הכיול השמור</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>התחלה מחדש</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>לחיצה ממושכת להשוואה</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>אין קצה זקוף בתמונה. יש לכוון אל גזע עץ, עמוד או פינת בית.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>בדרך כלל הכול כבר מתאים. יש לגרור רק אם הקווים נמצאים לצד הקצוות.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>להתחיל מחדש?
התמונות ומה שנמצא עד כה יאבדו.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>מתבצעת שמירת הכיול במצלמה…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>יש להמתין ולא לכבות את הטאבלט.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>התוכנית נסגרת אוטומטית, או בנגיעה במסך.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>מוכן לצילום.
יש לכוון אל בניינים או עצים, באור שמש חזק.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>איך להזיז</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>התחלה</translation>
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
        <translation>דוגמה</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>בדרך כלל הכול כבר מתאים.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>כל צבע הוא מרחק. הקווים הלבנים צריכים להימצא על קצות הדברים.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>רק אם הם נמצאים לצידם, יש לגרור שמאלה או ימינה עד שיתאימו.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>גרסה %1 זמינה.
היא תורד ותותקן בתוך דקות ספורות. לאחר מכן התוכנית תיסגר ותופעל מחדש אוטומטית.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>הורדת גרסה %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>החיבור אבד. מתבצע ניסיון נוסף…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 מתוך %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>מתחבר…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>ההתקנה מתחילה…
התוכנית נסגרת כעת ותופעל מחדש אוטומטית.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>העדכון לא הצליח.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>גרסה זו ממשיכה לפעול כמקודם.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>אחר כך</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>ניסיון נוסף</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>עדכון</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Birinci kamera tamam. Şimdi ikincisi.
Başka bir manzaraya dönün.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Şimdi çıkarsanız birinci kameranın kalibrasyonunu kaydedebilirsiniz.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Şimdi çıkarsanız hiçbir şey kaydedilmez.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>%1. fotoğraf çekildi.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Nasıl hareket ettirilir</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Baştan başla</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Duraklatıldı. Fotoğraf çekilmiyor.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>%1. fotoğraf yeni bir şey katmadı. Daha fazla çevirin.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>%1. fotoğraf bir şey katmadı: çok az ayrıntı var.</translation>
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
        <translation>Yeni bir kalibrasyon bulundu.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Renkli kamera, kayıtlı kalibrasyondan bu yana %1 döndü:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>sağa</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>sola</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>yukarı</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>aşağı</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>saat yönünde eğik</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>saat yönünün tersine eğik</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Şimdi görüntü üzerinde kontrol edin. Yalnızca siz kabul ettiğinizde kaydedilir.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Fotoğraflardaki sapma: kayıtlı kalibrasyonla %1 px, yenisiyle %2 px.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Kayıtlı kalibrasyon hâlâ uyuyor.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Renkli kamera alışılmadık ölçüde dönmüş.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Yalnızca bir dönme fotoğrafları açıklamıyor. Kameranın servise gitmesi gerekebilir.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Kayıtlı kalibrasyonu koru</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Dönme</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Fotoğraflardaki sapma</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Kaydedildi</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Kaydedilmedi</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Raporlar: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Nasıl hareket ettirilir</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Ayrıntılı bir manzaraya doğrultun.
Yakın veya uzak olsun, binalar ve ağaçlar uygundur. Çimen, gökyüzü ve çıplak duvarlar fazla basittir. En az iki adım uzakta durun.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Başka bir yöne çevirin.
Ayrıntılar görüntünün başka bir yerine gelecek şekilde tableti biraz yana, yukarı veya aşağı çevirin.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Yanıp sönene kadar durun.
Tableti bir an sabit tutun. Fotoğraf otomatik olarak çekilir. Sonra yeniden çevirin.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Kalibrasyon fotoğrafı çekmek için durun.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Güneş ışığı gerekli</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Yeterli güneş ışığı yok.
Dışarıda aydınlık, güneşli bir yere gidin.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Güneş ışığı yeterli</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Burası yeterince aydınlık!
“Devam” düğmesine basın.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Renkli kamera</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Birinci renkli kamera</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>İkinci renkli kamera</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Renklendirilmiş derinlik görüntüsünü renkli görüntüyle hizalayın.
Renkli kameranın kalibrasyonunu kabul etmek için “Devam” düğmesine basın. En baştan başlamak için “Baştan başla” düğmesine basın.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Renklendirilmiş derinlik görüntüsünü renkli görüntüyle hizalayın.
Birinci renkli kameranın kalibrasyonunu kabul etmek için “Devam” düğmesine basın. En baştan başlamak için “Baştan başla” düğmesine basın.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Renklendirilmiş derinlik görüntüsünü renkli görüntüyle hizalayın.
İkinci renkli kameranın kalibrasyonunu kabul etmek için “Devam” düğmesine basın. En baştan başlamak için “Baştan başla” düğmesine basın.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibrasyon kameraya kaydedildi.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Son kalibrasyon kameraya kaydedilmedi.
Lütfen yeniden kalibre edin.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Son kalibrasyon: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Kamerada ne son kalibrasyon ne de önceki kalibrasyon var.
Lütfen yeniden kalibre edin.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Farklı bir kalibrasyon fotoğrafı çekmek için cihazı hareket ettirin.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Bu fotoğraflardaki manzara fazla basit olduğu için kalibrasyon yapılamıyor.
Yeniden deneyin. Binalar veya ağaçlar gibi ayrıntılı bir manzaraya doğrultun.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kamera kalibrasyonu kaydettiğini bildirdi, ancak kaydetmedi</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Kameranın görüntüleri yeni kalibrasyonla uyuşmuyor</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kamera yanıt vermiyor</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Bir KXAPI çağrısı başarısız oldu.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Cihaz kalibre edilmemiş veya geçersiz kalibrasyon verileri içeriyor.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Tarnex Deepvane kamerada ciddi bir sorun oluştu.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Devam etmeden önce lütfen tüm Tarnex Deepvane uygulamalarını ve web tarayıcılarını kapatın.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Bu uygulamanın çalışabilmesi için Tarnex Deepvane kameranızın üretici yazılımının güncelleştirilmesi gerekiyor. Lütfen üretici yazılımını güncelleştirin ve uygulamayı yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Bilinmeyen bir hata oluştu.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Bağlantı kesildi ve yeniden kurulamadı.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>İndirme sunucusu bekleneni sağlamıyor.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>İndirilen dosya diske kaydedilemedi.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>İndirilen dosya bozuktu ve kaldırıldı.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Bu, imzasız bir geliştirme sürümüdür. Hiçbir yükleyici başlatmaz.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>İndirilen dosya bu programın üreticisi tarafından imzalanmadığı için kaldırıldı.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Bu sistem için yükleyici yok.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Yükleyici başlatılamadı.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Pil neredeyse bitti.
Tableti şarj cihazına bağlayın. Ardından kalibrasyon kameraya kaydedilebilir.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Başka bir program bu programın başlamasını engelliyor.
Tableti kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: geri okundu, önceki kalibrasyondan %2° farklı.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Kamera kalibrasyonu</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Dışarıya, parlak güneş ışığına çıkın.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Yakındaki veya uzaktaki binalara ya da ağaçlara doğrultun. Hareket ettirin, durun; en fazla sekiz fotoğraf otomatik olarak çekilir.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Sonucu tek parmakla kontrol edin ve kameraya kaydedin.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Yaklaşık üç dakika sürer.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>İki kamera için yaklaşık beş dakika sürer.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Kaydetmeden çıkılsın mı?
Fotoğraflar ve şu ana kadar bulunan sonuç kaybolur. Kamera eski kalibrasyonunu korur.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Kal</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>İlk kamerayı kaydet</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>İyi aydınlatılmış bir yere dönün.
İşlem otomatik olarak devam eder. Çekilen fotoğraflar geçerlidir.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Işık</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>İşaretten sonra ışık yeterli</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Birazdan otomatik olarak devam eder.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Burada ayrıntı eksik</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Yeterli ayrıntı</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Şimdi bu yöne çevirin</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Kamera açılıyor…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Tablet açıldıktan sonra bu yarım dakika sürebilir.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kamera henüz yanıt vermiyor. Kamerayı kullanan diğer programları kapatın veya “Çıkış” düğmesine basıp programı yeniden başlatın.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Derinlik kamerası bulunamadı.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Kamera kullanan diğer tüm programları kapatın.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Tableti kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Kalibrasyonu yeniden başlatın. Kamera hâlâ bulunamıyorsa tabletin servise gitmesi gerekir.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Arka kamera bulunamadı.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Sistemin gizlilik ayarlarından programların kamerayı kullanmasına izin verildiğini kontrol edin.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Aygıt Yöneticisi’nde arka kameranın açık olduğunu kontrol edin.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Kalibrasyonu yeniden başlatın.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Arka kamera görüntü vermiyor.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Arka kamerayı kullanan diğer tüm programları kapatın.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Kamerayı hiçbir şeyin kapatmadığından emin olun.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Kalibrasyonu yeniden başlatın. Şu ana kadar bulunan sonuç kaydedilmedi.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Kalibrasyonu yeniden başlatın. İlk kameranın kalibrasyonu çıkarken kaydedilebilir.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Görüntüde derinlik çok az. Birkaç metre uzaktaki bir şeye doğrultun.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Kayıtlı kalibrasyon</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Baştan başla</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Karşılaştırmak için basılı tutun</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Görüntüde dik kenar yok. Bir ağaç gövdesine, direğe veya ev köşesine doğrultun.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Genellikle zaten uyar. Yalnızca çizgiler kenarların yanındaysa sürükleyin.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Baştan başlansın mı?
Fotoğraflar ve şu ana kadar bulunan sonuç kaybolur.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Kalibrasyon kameraya kaydediliyor…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Lütfen bekleyin ve tableti kapatmayın.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Program otomatik olarak veya ekrana dokunduğunuzda kapanır.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Fotoğraf çekmeye hazır.
Parlak güneş ışığında binalara veya ağaçlara doğrultun.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Nasıl hareket ettirilir</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
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
        <translation>Örnek</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Genellikle zaten uyar.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Her renk bir uzaklığı gösterir. Beyaz çizgiler nesnelerin kenarlarında olmalıdır.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Yalnızca yanlarındaysa, uyana kadar sola veya sağa sürükleyin.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>%1 sürümü hazır.
Birkaç dakika içinde indirilip yüklenir. Ardından program kapanır ve otomatik olarak yeniden başlar.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>%1 sürümü indiriliyor…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Bağlantı kesildi. Yeniden deneniyor…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Bağlanılıyor…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Yükleme başlatılıyor…
Program şimdi kapanır ve otomatik olarak yeniden başlar.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Güncelleştirme başarısız oldu.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Bu sürüm eskisi gibi çalışmaya devam eder.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Daha sonra</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelleştir</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Первая камера готова. Теперь вторая.
Повернитесь к другой местности.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Если выйти сейчас, можно сохранить калибровку первой камеры.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Если выйти сейчас, ничего не сохранится.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Снимок %1 сделан.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Как двигать планшет</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Начать заново</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Пауза. Снимки не делаются.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Снимок %1 не дал ничего нового. Поверните дальше.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Снимок %1 ничего не дал: слишком мало деталей.</translation>
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
        <translation>Найдена новая калибровка.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Цветная камера повернулась на %1 относительно сохранённой калибровки:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>вправо</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>влево</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>вверх</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>вниз</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>наклон по часовой стрелке</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>наклон против часовой стрелки</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Теперь проверьте её по изображению. Она сохраняется, только если вы её примете.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Смещение на снимках: %1 пкс с сохранённой калибровкой, %2 пкс с новой.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Сохранённая калибровка по-прежнему подходит.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Цветная камера повернулась необычно далеко.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Один только поворот не объясняет снимки. Возможно, камере требуется обслуживание.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Оставить сохранённую</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Смещение на снимках</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Сохранена</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Не сохранена</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Отчёты: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Как двигать планшет</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Наведите камеру на местность, богатую деталями.
Подходят здания и деревья, близкие и далёкие. Трава, небо и голые стены слишком однообразны. Держитесь на расстоянии не менее двух шагов.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Поверните планшет в новом направлении.
Слегка поверните планшет вбок, вверх или вниз, чтобы детали оказались в другом месте кадра.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Замрите, пока экран не мигнёт.
Подержите планшет неподвижно. Снимок делается автоматически. Затем снова поверните.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Замрите, чтобы сделать калибровочный снимок.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Нужен солнечный свет</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Недостаточно солнечного света.
Выйдите на улицу, в яркое солнечное место.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Достаточно солнечного света</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Здесь достаточно светло!
Нажмите «Продолжить».</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Цветная камера</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Первая цветная камера</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Вторая цветная камера</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Совместите раскрашенное изображение глубины с цветным изображением.
Нажмите «Продолжить», чтобы принять калибровку цветной камеры, или «Начать заново», чтобы вернуться к началу.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Совместите раскрашенное изображение глубины с цветным изображением.
Нажмите «Продолжить», чтобы принять калибровку первой цветной камеры, или «Начать заново», чтобы вернуться к началу.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Совместите раскрашенное изображение глубины с цветным изображением.
Нажмите «Продолжить», чтобы принять калибровку второй цветной камеры, или «Начать заново», чтобы вернуться к началу.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Калибровка сохранена в камере.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Последняя калибровка не была сохранена в камере.
Выполните калибровку ещё раз.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Последняя калибровка: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>В камере нет ни последней, ни предыдущей калибровки.
Выполните калибровку ещё раз.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Поверните устройство, чтобы сделать другой калибровочный снимок.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Калибровка не удаётся, потому что сцена на этих снимках слишком однообразна.
Попробуйте ещё раз. Наведите камеру на что-нибудь с деталями: здания или деревья.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Камера сообщила, что сохранила калибровку, но не сделала этого</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Изображения камеры не соответствуют новой калибровке</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Камера не отвечает</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Сбой вызова KXAPI.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Устройство не откалибровано или содержит недопустимые данные калибровки.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Произошла серьёзная ошибка камеры Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Прежде чем продолжить, закройте все приложения Tarnex Deepvane и веб-браузеры.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Для работы этого приложения требуется обновить встроенное ПО камеры Tarnex Deepvane. Обновите его и запустите приложение снова.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Произошла неизвестная ошибка.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Соединение прервалось, и восстановить его не удалось.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Сервер загрузки не выдаёт то, что ожидалось.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Не удалось сохранить загруженный файл на диске.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Загруженный файл был повреждён и удалён.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>Это сборка для разработки без подписи. Она не запускает установщик.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Загруженный файл не подписан разработчиком этой программы и поэтому удалён.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Для этой системы нет установщика.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Не удалось запустить установщик.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Аккумулятор почти разряжен.
Подключите планшет к зарядному устройству. После этого калибровку можно будет сохранить в камере.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Другая программа мешает запуску этой.
Выключите планшет и снова включите его.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: считано обратно, %2° от прежней калибровки.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Калибровка камеры</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Выйдите на улицу, на яркий солнечный свет.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Наведите камеру на здания или деревья, близкие или далёкие. Поворачивайте планшет и замирайте: автоматически будет сделано до восьми снимков.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Проверьте результат одним пальцем и сохраните его в камере.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Займёт около трёх минут.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Для обеих камер займёт около пяти минут.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начать</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Выйти без сохранения?
Снимки и полученный результат будут потеряны. В камере останется прежняя калибровка.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Остаться</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Сохранить 1-ю камеру</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Вернитесь в хорошо освещённое место.
Работа продолжится автоматически. Сделанные снимки учитываются.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Свет</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>После метки света достаточно</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Сейчас работа продолжится автоматически.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Здесь мало деталей</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Деталей достаточно</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Теперь поверните сюда</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Запуск камеры…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>После включения планшета это может занять полминуты.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Камера пока не отвечает. Закройте другие программы, которые её используют, или нажмите «Выход» и запустите программу снова.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Камера глубины не найдена.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Закройте все другие программы, использующие камеру.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Выключите планшет и снова включите его.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Запустите калибровку снова. Если камера по-прежнему не найдена, планшету требуется обслуживание.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Задняя камера не найдена.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Проверьте в параметрах конфиденциальности системы, что программам разрешено использовать камеру.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Проверьте в диспетчере устройств, что задняя камера включена.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Запустите калибровку снова.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Задняя камера не даёт изображения.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Закройте все другие программы, использующие заднюю камеру.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Убедитесь, что камеру ничто не закрывает.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Запустите калибровку снова. Полученный результат не сохранён.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Запустите калибровку снова. Калибровку первой камеры можно сохранить при выходе.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Слишком мало данных о глубине. Наведите камеру на что-нибудь в нескольких метрах.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Сохранённая калибровка</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Начать заново</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Удерживать для сравнения</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>В кадре нет вертикальных краёв. Наведите камеру на ствол дерева, столб или угол дома.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Обычно всё уже совпадает. Тяните, только если линии лежат рядом с краями.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Начать заново?
Снимки и полученный результат будут потеряны.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Калибровка сохраняется в камере…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Подождите и не выключайте планшет.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Программа закроется автоматически или при касании экрана.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Всё готово к съёмке.
Наведите камеру на здания или деревья при ярком солнечном свете.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Как двигать планшет</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начать</translation>
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
        <translation>Пример</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Обычно всё уже совпадает.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Каждый цвет — это расстояние. Белые линии должны лежать на краях предметов.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Только если они лежат рядом, тяните влево или вправо, пока они не совпадут.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Доступна версия %1.
Она будет загружена и установлена за несколько минут. Затем программа закроется и автоматически запустится снова.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Загружается версия %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Соединение потеряно. Выполняется новая попытка…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 из %2 МБ</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Запускается установка…
Программа сейчас закроется и автоматически запустится снова.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Обновление не удалось.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Эта версия продолжает работать как прежде.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
</context>
</TS>

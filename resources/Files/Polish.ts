<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>Pierwsza kamera jest gotowa. Teraz druga.
Zwróć się ku innemu otoczeniu.</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>Jeśli teraz zakończysz, możesz zapisać kalibrację pierwszej kamery.</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>Jeśli teraz zakończysz, nic nie zostanie zapisane.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>Zdjęcie %1 wykonane.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Jak poruszać tabletem</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Zacznij od nowa</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>Wstrzymano. Zdjęcia nie są robione.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>Zdjęcie %1 nie wniosło nic nowego. Obróć dalej.</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>Zdjęcie %1 nic nie dało: za mało szczegółów.</translation>
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
        <translation>Znaleziono nową kalibrację.</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>Od zapisanej kalibracji kamera kolorowa obróciła się o %1:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>w prawo</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>w lewo</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>w górę</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>w dół</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>przechylona zgodnie z ruchem wskazówek zegara</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>przechylona przeciwnie do ruchu wskazówek zegara</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>Teraz sprawdź ją na obrazie. Zostanie zapisana dopiero po zaakceptowaniu.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>Odchyłka na zdjęciach: %1 px z zapisaną kalibracją, %2 px z nową.</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>Zapisana kalibracja nadal pasuje.</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>Kamera kolorowa obróciła się niezwykle daleko.</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>Sam obrót nie wyjaśnia zdjęć. Kamera może wymagać serwisu.</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>Zachowaj zapisaną kalibrację</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>Odchyłka na zdjęciach</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Nie zapisano</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Raporty: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>Jak poruszać tabletem</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>Skieruj tablet na otoczenie bogate w szczegóły.
Budynki i drzewa, bliskie lub odległe, są odpowiednie. Trawa, niebo i gołe ściany są zbyt proste. Zachowaj odstęp co najmniej dwóch kroków.</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>Obróć w innym kierunku.
Obróć tablet nieco w bok, w górę lub w dół, aby szczegóły znalazły się w innym miejscu obrazu.</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>Nie ruszaj tabletem aż do błysku.
Przez chwilę trzymaj tablet nieruchomo. Zdjęcie zostanie wykonane automatycznie. Potem obróć ponownie.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>Zatrzymaj się, aby wykonać zdjęcie kalibracyjne.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>Wymagane światło słoneczne</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>Jest za mało światła słonecznego.
Przejdź na zewnątrz w jasne, nasłonecznione miejsce.</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>Wystarczająco dużo słońca</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>Tutaj jest wystarczająco jasno!
Naciśnij Kontynuuj.</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>Kamera kolorowa</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>Pierwsza kamera kolorowa</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>Druga kamera kolorowa</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>Dopasuj kolorowy obraz głębi do obrazu kolorowego.
Naciśnij Kontynuuj, aby zaakceptować kalibrację kamery kolorowej, lub Zacznij od nowa, aby wrócić na początek.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>Dopasuj kolorowy obraz głębi do obrazu kolorowego.
Naciśnij Kontynuuj, aby zaakceptować kalibrację pierwszej kamery kolorowej, lub Zacznij od nowa, aby wrócić na początek.</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>Dopasuj kolorowy obraz głębi do obrazu kolorowego.
Naciśnij Kontynuuj, aby zaakceptować kalibrację drugiej kamery kolorowej, lub Zacznij od nowa, aby wrócić na początek.</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>Kalibracja jest zapisana w kamerze.</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>Ostatnia kalibracja nie została zapisana w kamerze.
Przeprowadź kalibrację ponownie.</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>Ostatnia kalibracja: %1.</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>Kamera nie zawiera ani ostatniej, ani poprzedniej kalibracji.
Przeprowadź kalibrację ponownie.</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>Porusz urządzeniem, aby wykonać inne zdjęcie kalibracyjne.</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>Kalibracja nie działa, ponieważ otoczenie na tych zdjęciach jest zbyt proste.
Spróbuj ponownie. Skieruj tablet na urozmaicone otoczenie, takie jak budynki lub drzewa.</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>Kamera zgłosiła zapisanie kalibracji, ale jej nie zapisała</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>Obrazy z kamery nie pasują do nowej kalibracji</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>Kamera nie odpowiada</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>Wywołanie KXAPI nie powiodło się.</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>Urządzenie nie zostało skalibrowane lub ma nieprawidłowe dane kalibracji.</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>Wystąpił poważny problem z kamerą Tarnex Deepvane.</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>Przed kontynuowaniem zamknij wszystkie aplikacje Tarnex Deepvane i przeglądarki internetowe.</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>Przed uruchomieniem tej aplikacji kamera Tarnex Deepvane wymaga aktualizacji oprogramowania układowego. Zaktualizuj je i uruchom aplikację ponownie.</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>Wystąpił nieznany błąd.</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>Połączenie zostało przerwane i nie udało się go przywrócić.</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>Serwer pobierania nie dostarcza tego, czego oczekiwano.</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>Nie udało się zapisać pobranego pliku na dysku.</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>Pobrany plik był uszkodzony i został usunięty.</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>To jest wersja deweloperska bez podpisu. Nie uruchamia instalatora.</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>Pobrany plik nie jest podpisany przez producenta tego programu i został usunięty.</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>Nie ma instalatora dla tego systemu.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Nie udało się uruchomić instalatora.</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>Bateria jest prawie rozładowana.
Podłącz tablet do ładowarki. Potem kalibrację będzie można zapisać w kamerze.</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>Inny program uniemożliwia uruchomienie tego programu.
Wyłącz tablet i włącz go ponownie.</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: odczytano, %2° od poprzedniej kalibracji.</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>Kalibracja kamery</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>Wyjdź na zewnątrz, w jasne słońce.</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>Skieruj tablet na budynki lub drzewa, bliskie albo odległe. Porusz, zatrzymaj się, a do ośmiu zdjęć zostanie wykonanych automatycznie.</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>Sprawdź wynik jednym palcem i zapisz go w kamerze.</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>Trwa około trzech minut.</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>Dla obu kamer trwa około pięciu minut.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Rozpocznij</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>Wyjść bez zapisywania?
Zdjęcia i dotychczasowy wynik zostaną utracone. Kamera zachowa starą kalibrację.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Zostań</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>Zapisz 1. kamerę</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>Wróć w dobrze oświetlone miejsce.
Praca będzie kontynuowana automatycznie. Wykonane zdjęcia się liczą.</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>Światło</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>Dość światła od znacznika</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>Za chwilę program przejdzie dalej.</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>Tu brakuje szczegółów</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>Dość szczegółów</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>Teraz obróć w tę stronę</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>Otwieranie kamery…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>Po włączeniu tabletu może to potrwać pół minuty.</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>Kamera jeszcze nie odpowiada. Zamknij inne programy, które jej używają, lub naciśnij Wyjdź i uruchom program ponownie.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>Nie znaleziono kamery głębi.</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>Zamknij wszystkie inne programy używające kamery.</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>Wyłącz tablet i włącz go ponownie.</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>Uruchom kalibrację ponownie. Jeśli kamery nadal brakuje, tablet wymaga serwisu.</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>Nie znaleziono tylnej kamery.</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>Sprawdź w ustawieniach prywatności systemu, czy programy mogą używać kamery.</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>Sprawdź w Menedżerze urządzeń, czy tylna kamera jest włączona.</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>Uruchom kalibrację ponownie.</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>Tylna kamera nie dostarcza obrazu.</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>Zamknij wszystkie inne programy używające tylnej kamery.</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>Upewnij się, że nic nie zasłania kamery.</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>Uruchom kalibrację ponownie. Dotychczasowy wynik nie jest zapisany.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>Uruchom kalibrację ponownie. Kalibrację pierwszej kamery można zapisać przy wyjściu.</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>Za mało głębi w obrazie. Skieruj tablet na coś oddalonego o kilka metrów.</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>Zapisana kalibracja</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Zacznij od nowa</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>Przytrzymaj, by porównać</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>Brak pionowej krawędzi w obrazie. Skieruj tablet na pień drzewa, słup lub narożnik domu.</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>Zwykle już pasuje. Przeciągaj tylko wtedy, gdy linie leżą obok krawędzi.</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>Zacząć od nowa?
Zdjęcia i dotychczasowy wynik zostaną utracone.</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>Zapisywanie kalibracji w kamerze…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>Zaczekaj i nie wyłączaj tabletu.</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>Program zamknie się automatycznie lub po dotknięciu ekranu.</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>Wszystko gotowe do zdjęć.
Skieruj tablet na budynki lub drzewa w jasnym słońcu.</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>Jak poruszać tabletem</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Rozpocznij</translation>
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
        <translation>Przykład</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>Zwykle już pasuje.</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>Każdy kolor to odległość. Białe linie muszą leżeć na krawędziach rzeczy.</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>Tylko jeśli leżą obok, przeciągaj w lewo lub w prawo, aż będą pasować.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>Dostępna jest wersja %1.
Zostanie pobrana i zainstalowana w ciągu kilku minut. Następnie program zamknie się i uruchomi ponownie automatycznie.</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>Pobieranie wersji %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>Utracono połączenie. Trwa ponowna próba…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 z %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Łączenie…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>Uruchamianie instalacji…
Program zamknie się teraz i uruchomi ponownie automatycznie.</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>Aktualizacja nie powiodła się.</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>Ta wersja działa nadal tak jak dotąd.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizuj</translation>
    </message>
</context>
</TS>

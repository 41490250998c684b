<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB wolne</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>Niezgodna suma kontrolna %@: serwer podaje %@, pobrany plik daje %@. Plik nie został umieszczony i pozostaje na serwerze; zostanie pobrany ponownie.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>Sumy kontrolne %@</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>%lld min temu</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>%lld d temu</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>%lld godz. temu</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>%lld s temu</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n aktywne połączenie</numerusform>
                <numerusform>%n aktywne połączenia</numerusform>
                <numerusform>%n aktywnych połączeń</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n plik</numerusform>
                <numerusform>%n pliki</numerusform>
                <numerusform>%n plików</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>Znaleziono %n plik</numerusform>
                <numerusform>Znaleziono %n pliki</numerusform>
                <numerusform>Znaleziono %n plików</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>Wybrano %n folder</numerusform>
                <numerusform>Wybrano %n foldery</numerusform>
                <numerusform>Wybrano %n folderów</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n min</numerusform>
                <numerusform>%n min</numerusform>
                <numerusform>%n min</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n s</numerusform>
                <numerusform>%n s</numerusform>
                <numerusform>%n s</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n plik czeka na stabilizację</numerusform>
                <numerusform>%n pliki czekają na stabilizację</numerusform>
                <numerusform>%n plików czeka na stabilizację</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>” ma niezastosowane zmiany.</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>”?</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n plik pobiera się...</numerusform>
                <numerusform>+%n pliki pobierają się...</numerusform>
                <numerusform>+%n plików pobiera się...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. Czy kontynuować?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...i jeszcze %n plik</numerusform>
                <numerusform>...i jeszcze %n pliki</numerusform>
                <numerusform>...i jeszcze %n plików</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 minuta</translation>
        </message>
        <message>
            <source>10 MB/s</source>
            <translation>10 MB/s</translation>
        </message>
        <message>
            <source>128 KB/s</source>
            <translation>128 KB/s</translation>
        </message>
        <message>
            <source>15 seconds</source>
            <translation>15 sekund</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 minuty</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 sekundy</translation>
        </message>
        <message>
            <source>20 MB/s</source>
            <translation>20 MB/s</translation>
        </message>
        <message>
            <source>256 KB/s</source>
            <translation>256 KB/s</translation>
        </message>
        <message>
            <source>30 seconds</source>
            <translation>30 sekund</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 minut</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 sekund</translation>
        </message>
        <message>
            <source>50 MB/s</source>
            <translation>50 MB/s</translation>
        </message>
        <message>
            <source>512 KB/s</source>
            <translation>512 KB/s</translation>
        </message>
        <message>
            <source>ACTIVITY</source>
            <translation>AKTYWNOŚĆ</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>O programie Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Odmowa dostępu do zdalnego folderu. Sprawdź, czy ścieżka istnieje i czy masz prawo odczytu.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>Dostęp do „%@” wygasł. Wybierz folder ponownie w Ustawieniach.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Aktywny</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Dodaj połączenie</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Dodaj regułę</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Zaawansowane</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Opcje zaawansowane</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Po %n nieudanej próbie</numerusform>
                <numerusform>Po %n nieudanych próbach z rzędu</numerusform>
                <numerusform>Po %n nieudanych próbach z rzędu</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Agencja / Kreatywne</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Wszystkie</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Wszystko oprócz tymczasowych (zalecane)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Wszystkie pliki</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Wszystkie pliki (bez filtra)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Wszystkie pliki razem (jeden folder)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Łącznie</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Zezwalaj na certyfikaty z podpisem własnym</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Zastosuj</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Zastosować szablon?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Zastosować je teraz czy odrzucić?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Zastosować zmiany?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiowizualne</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Uwierzytelnianie</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>Uwierzytelnianie nie powiodło się. Sprawdź nazwę użytkownika i hasło.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Automatyczna zmiana nazwy</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>Automatycznie rozpakowuj ZIP/GZ</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Automatycznie obserwuj nowe zdalne foldery</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Działanie</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Przeglądaj...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>POŁĄCZENIA</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Anuluj</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>Nie można połączyć się z portem %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>Nie można zapisać w „%@”. Sprawdź uprawnienia folderu w menedżerze plików.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Sieć komórkowa</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Zmiany zastosowane</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Suma kontrolna i listowanie</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Wybierz...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Wyczyść</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Wyczyść wszystko</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Kolor</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Rozszerzenia oddzielone przecinkami. Przykład: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Polecenie lub skrypt</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Łącz automatycznie przy uruchomieniu Tarnela</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Połączono</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Połączenie</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Błąd połączenia (kod %lld)%@. Sprawdź ustawienia połączenia.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>Połączenie nie powiodło się: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Połączenie udane</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>Przekroczono czas połączenia. Serwer jest zbyt wolny lub nieosiągalny. Zwiększ limit czasu lub sprawdź sieć.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Połączenia</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Kontynuuj</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Kopiuj wszystko</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Tryb kopiowania: pliki zostają na serwerze.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>Nie można połączyć się z serwerem. Sprawdź host, port i czy serwer działa.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>Nie można odnaleźć hosta. Sprawdź, czy nazwa hosta jest poprawna i czy DNS działa.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Utwórz podfolder dla każdego połączenia</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Własny</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Własne przypisanie dla folderu</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Własny wzorzec (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>Rozwiązywanie DNS</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Dane i analityka</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Dane / Analityka</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Dni</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Usuń</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>Usunąć „</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Usuwaj puste zdalne foldery</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>Usuwanie nie powiodło się: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Usuwaj pliki z FTP po pobraniu</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Usunąć to połączenie?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Odznacz wszystko</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Miejsce docelowe</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Folder docelowy</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Wyłącza weryfikację SSL. Włącz tylko wtedy, gdy serwer używa certyfikatu z podpisem własnym lub wygasłego.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Wyłącz połączenie</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Wyłączone</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Odrzuć</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Miejsce na dysku</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Powiadomienia o pobieraniu</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>Pobieranie nie powiodło się: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>Pobrany plik „%@” jest pusty. Plik zdalny może być uszkodzony lub wciąż zapisywany.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>E-commerce</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>E-commerce / Dane</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Włącz połączenie</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Włączone</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Błąd</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Powiadomienia o błędach</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Błąd: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Przykład: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Szablon rozszerzeń</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>Tryb FTP</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP nie szyfruje danych. Dla danych medycznych zdecydowanie zalecany jest SFTP.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>Polecenie FTP nie powiodło się. Sprawdź zdalną ścieżkę lub uprawnienia do usuwania.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Plik</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Typ pliku</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>Nazwa pliku zawiera</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>Nazwa pliku zaczyna się od</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filtry</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finanse</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finanse / Księgowość</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Błąd folderu</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Folder niedostępny: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>Od </translation>
        </message>
        <message>
            <source>General</source>
            <translation>Ogólne</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Grupuj powiadomienia (podsumowanie zamiast listy plików)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Zdrowie</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Zdrowie / Zgodność</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Historia...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Host</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>Nie znaleziono hosta „%@”</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>IT i integracje</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>IT / Integracje</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Gdy żadna reguła nie pasuje</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Jeśli komputer mimo to przejdzie w stan uśpienia (bateria, zamknięta pokrywa), transfery zostaną wstrzymane i wznowione automatycznie po wybudzeniu.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Pomiń (nie pobieraj)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Obejmuje pliki ze wszystkich podfolderów na serwerze. Przy dużych serwerach może działać wolno.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>Przerwane pobieranie wznawia się automatycznie. Ustaw 0, aby wyłączyć.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>Listowanie przez LIST</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Język</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Ostatnia aktywność: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Uruchamiaj Tarnela po zalogowaniu</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>Pobieranie listy folderów...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Folder lokalny</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Folder dziennika</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Dziennik...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Mało miejsca</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>Listowanie przez MLSD</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Stworzony przez twórców Tarnela.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Folder główny</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Ręcznie</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Warunek</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Pasuje do każdego pliku, którego nazwa zawiera ten tekst</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Pasuje do każdego pliku, którego nazwa zaczyna się od tego tekstu</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Maks. głębokość: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Maks. prędkość pobierania</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Maks. prób wznowienia: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Maks. ponowień: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Min. rozmiar pliku: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Minimum wolnego miejsca</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Odwzoruj strukturę zdalną</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>Obserwowanie — brak transferów</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Tryb przenoszenia: pliki są usuwane z serwera.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Wycisz</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>Moje FTP aparatu</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nazwa</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Sieć</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Nowe połączenie</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Brak sumy kontrolnej: pliki są sprawdzane według rozmiaru</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Brak połączeń</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>Brak skonfigurowanych połączeń</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Brak wpisów w dzienniku.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Bez minimum</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Brak sieci</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Brak ostatnich pobrań</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Bez zmiany nazwy — zostaje oryginalna nazwa pliku</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Brak reguł — wszystkie pliki trafiają do folderu głównego</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>Nie znaleziono podfolderów</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>Brak historii transferów.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Brak</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Nie wybrano</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Powiadomienia</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Powiadamiaj o błędach połączenia</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Powiadamiaj, gdy połączenia wstrzymują się lub wznawiają według harmonogramu</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Powiadamiaj o zakończeniu pobierania</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Offline</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Zostało tylko %@ GB miejsca na dysku. Zwolnij miejsce, aby pobierać dalej.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Tylko przy %n lub więcej plikach</numerusform>
                <numerusform>Tylko przy %n lub więcej plikach</numerusform>
                <numerusform>Tylko przy %n lub więcej plikach</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Tylko ostatni poziom folderów</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Otwórz Tarnel</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Otwórz folder docelowy</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Otwórz foldery docelowe</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Otwórz folder główny</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Opcjonalna nazwa etykiety</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Porządkowanie</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Porządkuj według daty (RRRR/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Porządkuj pobrane pliki</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Pozostałe pliki</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Błąd analizy: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>Odebrano część pliku. Transfer został przerwany i zostanie automatycznie ponowiony.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Pasywny (zalecany)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Hasło</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Wzorzec (pusty = bez zmiany nazwy)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Wzorzec:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Wstrzymaj</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Wstrzymuj i wznawiaj po wybudzeniu</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Wstrzymuj, gdy internet jest niedostępny</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Wstrzymuj przy mobilnym hotspocie</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>Wstrzymano</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>Wstrzymano — mało miejsca na dysku</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>Wstrzymano — wykryto mobilny hotspot</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>Wstrzymano — brak połączenia z internetem</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotografia</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Tylko zdjęcia</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Odtwarzaj dźwięk po pobraniu</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Częstotliwość sprawdzania</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Port</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>Port musi być z zakresu od 1 do 65535</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Szablon</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Kliknij „Przeglądaj...”, aby wyświetlić foldery serwera.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Zapobiegaj uśpieniu podczas pobierania</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Uśpienie zablokowane — trwa pobieranie</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Podgląd</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Podgląd:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Druk i grafika</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Druk / Grafika</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protokół</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Zakończ</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>OSTATNIE</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Wybierz folder ponownie, aby nadać stały dostęp</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Przeczytaj mnie</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Zalecane przy ważnych transferach. Może podwoić czas pobierania.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Folder zdalny</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Zdalne podfoldery</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Dostęp do zdalnego folderu</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Ścieżka zdalna</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>Ścieżka zdalna zawiera znak sterujący</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Badania / Nauka</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Uruchom Tarnela ponownie, aby zmienić język.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Wznów</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Porzucono</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Ponawianie (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Reguła sortowania</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Reguły sortowania</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Reguła włączona</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Uruchom akcję po pobraniu</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>Ścieżka klucza SSH</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>Weryfikacja certyfikatu SSL nie powiodła się. Certyfikat serwera może mieć podpis własny lub być wygasły.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>Uzgadnianie SSL/TLS nie powiodło się. Serwer może nie obsługiwać FTPS albo certyfikat jest nieprawidłowy.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>STATYSTYKI</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Jak folder główny</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Zapisz regułę</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Zapisz w folderze głównym</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Zapisz w wybranym folderze</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Harmonogram</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Powiadomienia harmonogramu</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Według harmonogramu </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Szukaj...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Szablon branżowy</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Zaznacz wszystko</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>Wybierz klucz SSH (opcjonalnie)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Wybierz połączenie lub dodaj nowe.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Ustawienia...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Jednoczesne pobierania: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Rozmiar</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>Niezgodny rozmiar: oczekiwano %@, otrzymano %@. Plik może być wciąż wysyłany.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Uśpienie</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>Uśpienie jest blokowane tylko podczas pobierania plików. W bezczynności uśpienie działa normalnie.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Blokada uśpienia włączona</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Dźwięk</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Sprawdzenia stabilności: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Uruchamianie</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Stan</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Zatrzymano</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Sukces</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Synchronizacja i transfer</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Dziennik synchronizacji</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Synchronizuj teraz</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Synchronizacja co </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Synchronizuj tylko w zaplanowanych godzinach</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Synchronizuj podfoldery rekurencyjnie</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>Synchronizowanie...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Domyślny systemu</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>Połączenie TCP</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Etykiety</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (kompilacja %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel — historia</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel — dziennik</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Ustawienia Tarnela</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Tarnel działa dalej w tle po zamknięciu tego okna. Aby je ponownie otworzyć, uruchom Tarnel z menu aplikacji.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: pobrano %n plik</numerusform>
                <numerusform>Tarnel: pobrano %n pliki</numerusform>
                <numerusform>Tarnel: pobrano %n plików</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: błąd połączenia</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: problem z folderem lokalnym</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: wykryto nowy folder</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: transfer nie powiódł się</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Testuj połączenie</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Etykieta tekstowa</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>Klucz hosta serwera SFTP zmienił się od ostatniego połączenia z %@. Może to oznaczać, że ktoś przechwytuje połączenie. Jeśli zmiana jest oczekiwana (serwer przeinstalowano lub wymieniono jego klucz), usuń wiersz dla %@ z %@ i połącz się ponownie.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>Połączenie „</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Tej operacji nie można cofnąć.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>Bieżąca konfiguracja zostanie zastąpiona zalecanymi wartościami dla: </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Czas</translation>
        </message>
        <message>
            <source>To </source>
            <translation>Do </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Dzisiaj</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Historia transferów</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Typ</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Wzorzec glob systemu Unix: * oznacza dowolne znaki, ? jeden znak</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Bez limitu</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Włącz dźwięk</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>Wysyłanie/zapis nie powiodło się. Serwer odrzucił operację. Sprawdź uprawnienia zapisu na serwerze.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Nazwa użytkownika</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Zmienne: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Weryfikuj sumę kontrolną (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Wideo</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Tylko wideo</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>Oczekiwanie...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Ostrzegaj i wstrzymuj przy małej ilości miejsca na dysku</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Nieprawidłowa nazwa użytkownika lub hasło</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Nigdy nieużywana: wcześniejsza reguła już obejmuje te pliki</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Audio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Dokumenty</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Obrazy</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Pliki tymczasowe</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Wideo</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Przywróć szablon</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Pobieraj</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Pomijaj</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Inne rozszerzenia</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>— niepowodzenie po %n próbie</numerusform>
                <numerusform>— niepowodzenie po %n próbach</numerusform>
                <numerusform>— niepowodzenie po %n próbach</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>rośnie...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>faktura</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>przed chwilą</translation>
        </message>
    </context>
</TS>

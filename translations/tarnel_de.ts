<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB frei</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>%@-Prüfsumme stimmt nicht überein: Der Server meldet %@, der Download ergibt %@. Die Datei wurde nicht abgelegt und bleibt auf dem Server; sie wird erneut heruntergeladen.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>%@-Prüfsummen</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>vor %lld Min.</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>vor %lld T.</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>vor %lld Std.</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>vor %lld s</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n aktive Verbindung</numerusform>
                <numerusform>%n aktive Verbindungen</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n Datei</numerusform>
                <numerusform>%n Dateien</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n Datei gefunden</numerusform>
                <numerusform>%n Dateien gefunden</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n Ordner ausgewählt</numerusform>
                <numerusform>%n Ordner ausgewählt</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n Minute</numerusform>
                <numerusform>%n Minuten</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n Sekunde</numerusform>
                <numerusform>%n Sekunden</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n wartet auf Stabilität</numerusform>
                <numerusform>%n warten auf Stabilität</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>“ hat Änderungen, die nicht übernommen wurden.</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>“ löschen?</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n weitere wird geladen...</numerusform>
                <numerusform>+%n weitere werden geladen...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation> überschrieben. Möchten Sie fortfahren?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...und %n weitere</numerusform>
                <numerusform>...und %n weitere</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 Minute</translation>
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
            <translation>15 Sekunden</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 Minuten</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 Sekunden</translation>
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
            <translation>30 Sekunden</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 Minuten</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 Sekunden</translation>
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
            <translation>AKTIVITÄT</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Über Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Zugriff auf den entfernten Ordner verweigert. Prüfen Sie, ob der Pfad existiert und Sie Leserechte haben.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>Der Zugriff auf „%@“ ist abgelaufen. Bitte wählen Sie den Ordner in den Einstellungen erneut aus.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Aktiv</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Verbindung hinzufügen</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Regel hinzufügen</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Erweitert</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Erweiterte Optionen</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Nach %n Fehlschlag</numerusform>
                <numerusform>Nach %n aufeinanderfolgenden Fehlschlägen</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Agentur / Kreativ</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Alle</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Alle außer temporären (empfohlen)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Alle Dateien</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Alle Dateien (kein Filter)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Alle Dateien flach (ein Ordner)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Insgesamt</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Selbstsignierte Zertifikate zulassen</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Übernehmen</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Vorlage übernehmen?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Jetzt übernehmen oder verwerfen?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Änderungen übernehmen?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiovisuell</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Anmeldung</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>Anmeldung fehlgeschlagen. Prüfen Sie Benutzername und Passwort.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Automatisch umbenennen</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>ZIP/GZ automatisch entpacken</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Neue entfernte Ordner automatisch überwachen</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Verhalten</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Durchsuchen...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>VERBINDUNGEN</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>Keine Verbindung zu Port %lld möglich</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>In „%@“ kann nicht geschrieben werden. Prüfen Sie die Zugriffsrechte des Ordners im Dateimanager.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Mobilfunk</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Änderungen übernommen</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Prüfsumme und Auflistung</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Auswählen...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Entfernen</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Alles löschen</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Farbe</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Endungen durch Kommas getrennt. Beispiel: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Befehl oder Skript</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Beim Start von Tarnel automatisch verbinden</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Verbunden</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Verbindung</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Verbindungsfehler (Code %lld)%@. Prüfen Sie die Verbindungseinstellungen.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>Verbindung fehlgeschlagen: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Verbindung erfolgreich</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>Zeitüberschreitung der Verbindung. Der Server ist zu langsam oder nicht erreichbar. Erhöhen Sie die Wartezeit oder prüfen Sie Ihr Netzwerk.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Verbindungen</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Fortfahren</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Alles kopieren</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Kopiermodus: Die Dateien bleiben auf dem Server.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>Keine Verbindung zum Server möglich. Prüfen Sie Host und Port und ob der Server läuft.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>Host nicht gefunden. Prüfen Sie, ob der Hostname stimmt und Ihr DNS funktioniert.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Unterordner pro Verbindung anlegen</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Benutzerdefiniert</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Eigene Zuordnung pro Ordner</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Eigenes Muster (Glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>DNS-Auflösung</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Daten &amp; Analyse</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Daten / Analyse</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Tage</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>„</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Leere entfernte Ordner löschen</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>Löschen fehlgeschlagen: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Dateien nach dem Download vom FTP-Server löschen</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Diese Verbindung löschen?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Auswahl aufheben</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Ziel</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Zielordner</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Schaltet die SSL-Prüfung ab. Nur aktivieren, wenn Ihr Server ein selbstsigniertes oder abgelaufenes Zertifikat verwendet.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Verbindung deaktivieren</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Deaktiviert</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Verwerfen</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Speicherplatz</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Download-Benachrichtigungen</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>Download fehlgeschlagen: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>Die heruntergeladene Datei „%@“ ist leer. Die Datei auf dem Server ist eventuell beschädigt oder wird noch geschrieben.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>E-Commerce</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>E-Commerce / Daten</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Verbindung aktivieren</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Aktiviert</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Fehler</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Fehlerbenachrichtigungen</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Fehler: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Beispiel: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Endungsvorlage</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>FTP-Modus</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP verschlüsselt keine Daten. Für Patientendaten wird SFTP dringend empfohlen.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>FTP-Befehl fehlgeschlagen. Prüfen Sie den entfernten Pfad oder die Löschrechte.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Datei</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Dateityp</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>Dateiname enthält</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>Dateiname beginnt mit</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filter</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finanzen</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finanzen / Buchhaltung</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Ordnerfehler</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Ordner nicht zugänglich: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>Von </translation>
        </message>
        <message>
            <source>General</source>
            <translation>Allgemein</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Benachrichtigungen bündeln (Zusammenfassung statt Dateiliste)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Gesundheit</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Gesundheit / Compliance</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Verlauf...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Host</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>Host „%@“ nicht gefunden</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>IT &amp; Integrationen</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>IT / Integrationen</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Wenn keine Regel zutrifft</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Geht der Computer trotzdem in den Ruhezustand (Akku, Deckel zu), werden Übertragungen angehalten und beim Aufwachen automatisch fortgesetzt.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Ignorieren (nicht herunterladen)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Bezieht Dateien aus allen Unterordnern auf dem Server ein. Kann bei großen Servern langsam sein.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>Unterbrochene Downloads werden automatisch fortgesetzt. 0 schaltet dies ab.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>Auflistung per LIST</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Sprache</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Letzte Aktivität: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Tarnel beim Anmelden starten</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>Ordner werden aufgelistet...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Lokaler Ordner</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Protokollordner</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Protokoll...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Speicher knapp</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>Auflistung per MLSD</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Entwickelt von den Tarnel-Entwicklern.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Hauptordner</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manuell</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Bedingung</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Trifft auf jede Datei zu, deren Name diesen Text enthält</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Trifft auf jede Datei zu, deren Name mit diesem Text beginnt</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Maximale Tiefe: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Max. Download-Geschwindigkeit</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Max. Fortsetzungsversuche: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Max. Wiederholungen: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Min. Dateigröße: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Mindestens frei</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Entfernte Struktur spiegeln</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>Überwachung aktiv — keine laufenden Übertragungen</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Verschiebemodus: Die Dateien werden vom Server entfernt.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Stummschalten</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>Mein Kamera-FTP</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Netzwerk</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Neue Verbindung</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Keine Prüfsumme: Dateien werden anhand ihrer Größe geprüft</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Keine Verbindungen</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>Keine Verbindungen eingerichtet</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Noch keine Protokolleinträge.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Kein Minimum</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Kein Netzwerk</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Keine neuen Downloads</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Keine Umbenennung — der ursprüngliche Dateiname bleibt</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Keine Regeln — alle Dateien landen im Hauptordner</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>Keine Unterordner gefunden</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>Kein Übertragungsverlauf.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Keine</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Nicht ausgewählt</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Benachrichtigungen</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Bei Verbindungsfehlern benachrichtigen</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Benachrichtigen, wenn Verbindungen nach Zeitplan pausieren oder fortfahren</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Benachrichtigen, wenn Downloads fertig sind</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Offline</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Nur noch %@ GB Speicherplatz frei. Geben Sie Speicherplatz frei, um weiter herunterzuladen.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Nur bei mindestens %n Datei</numerusform>
                <numerusform>Nur bei mindestens %n Dateien</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Nur letzte Ordnerebene</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Tarnel öffnen</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Zielordner öffnen</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Zielordner öffnen</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Hauptordner öffnen</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Optionaler Tag-Name</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Ablage</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Nach Datum ordnen (JJJJ/MM/TT)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Downloads ordnen</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Andere Dateien</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Verarbeitungsfehler: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>Datei nur teilweise empfangen. Die Übertragung wurde unterbrochen und wird automatisch wiederholt.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Passiv (empfohlen)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Passwort</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Muster (leer = nicht umbenennen)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Muster:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pausieren</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Pausieren und beim Aufwachen fortsetzen</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Pausieren, wenn kein Internet verfügbar ist</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Bei mobilem Hotspot pausieren</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>Pausiert</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>Pausiert — wenig Speicherplatz</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>Pausiert — mobiler Hotspot erkannt</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>Pausiert — keine Internetverbindung</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotografie</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Nur Fotos</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Bei Download einen Ton abspielen</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Abfrageintervall</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Port</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>Der Port muss zwischen 1 und 65535 liegen</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Vorlage</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Klicken Sie auf „Durchsuchen...“, um die Ordner des Servers aufzulisten.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Ruhezustand während Downloads verhindern</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Ruhezustand verhindert — Download läuft</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vorschau</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Vorschau:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Druck &amp; Grafik</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Druck / Grafik</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protokoll</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Beenden</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>ZULETZT</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Ordner erneut auswählen, um dauerhaften Zugriff zu erlauben</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Liesmich</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Für wichtige Übertragungen empfohlen. Kann die Downloadzeit verdoppeln.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Entfernter Ordner</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Entfernte Unterordner</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Zugriff auf entfernten Ordner</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Entfernter Pfad</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>Der entfernte Pfad enthält ein Steuerzeichen</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Forschung / Wissenschaft</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Starten Sie Tarnel neu, um die Sprache zu wechseln.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Fortsetzen</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Aufgegeben</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Neuer Versuch (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Sortierregel</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Sortierregeln</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Regel aktiv</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Aktion nach dem Download ausführen</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>SSH-Schlüsselpfad</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>Prüfung des SSL-Zertifikats fehlgeschlagen. Das Serverzertifikat ist möglicherweise selbstsigniert oder abgelaufen.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>SSL/TLS-Handshake fehlgeschlagen. Der Server unterstützt eventuell kein FTPS oder das Zertifikat ist ungültig.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>STATISTIK</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Wie Hauptordner</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Regel speichern</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Im Hauptordner speichern</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>In bestimmtem Ordner speichern</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Zeitplan</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Zeitplan-Benachrichtigungen</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Zeitfenster </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Suchen...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Branchenvorlage</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Alle auswählen</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>SSH-Schlüssel auswählen (optional)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Wählen Sie eine Verbindung aus oder fügen Sie eine neue hinzu.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Einstellungen...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Parallele Downloads: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Größe</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>Größe stimmt nicht: erwartet %@, erhalten %@. Die Datei wird eventuell noch hochgeladen.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Ruhezustand</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>Der Ruhezustand wird nur verhindert, solange Dateien heruntergeladen werden. Im Leerlauf gilt wieder das normale Verhalten.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Ruhezustand-Sperre aktiv</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Ton</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Stabilitätsprüfungen: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Programmstart</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Status</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Gestoppt</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Erfolgreich</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Abgleich &amp; Übertragung</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Abgleichsprotokoll</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Jetzt abgleichen</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Alle </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Nur zu geplanten Zeiten abgleichen</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Unterordner rekursiv abgleichen</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>Abgleich läuft...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Systemsprache</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>TCP-Verbindung</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Tags</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (Build %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel – Verlauf</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel – Protokoll</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Tarnel-Einstellungen</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Tarnel läuft im Hintergrund weiter, wenn Sie dieses Fenster schließen. Um es wieder zu öffnen, starten Sie Tarnel erneut aus dem Anwendungsmenü.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n Datei heruntergeladen</numerusform>
                <numerusform>Tarnel: %n Dateien heruntergeladen</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: Verbindungsfehler</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: Problem mit lokalem Ordner</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: Neuer Ordner erkannt</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: Übertragung fehlgeschlagen</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Verbindung testen</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Text-Tag</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>Der Hostschlüssel des SFTP-Servers hat sich seit der letzten Verbindung zu %@ geändert. Das kann bedeuten, dass jemand die Verbindung abfängt. Ist die Änderung erwartet (der Server wurde neu installiert oder sein Schlüssel ersetzt), entfernen Sie die Zeile für %@ aus %@ und verbinden Sie sich erneut.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>Die Verbindung „</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Dies kann nicht rückgängig gemacht werden.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>Dadurch wird die aktuelle Konfiguration mit den empfohlenen Werten für </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Zeit</translation>
        </message>
        <message>
            <source>To </source>
            <translation>Bis </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Heute</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Übertragungsverlauf</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Typ</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Unix-Glob-Muster: * steht für beliebige Zeichen, ? für genau ein Zeichen</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Unbegrenzt</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Ton an</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>Hochladen/Speichern fehlgeschlagen. Der Server hat den Vorgang abgelehnt. Prüfen Sie die Schreibrechte auf dem Server.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Benutzername</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Variablen: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Prüfsumme kontrollieren (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Nur Video</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>Wartet...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Bei wenig Speicherplatz warnen und pausieren</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Falscher Benutzername oder falsches Passwort</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Wird nie verwendet: Eine frühere Regel erfasst diese Dateien bereits</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Audio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Dokumente</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Bilder</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Temporäre Dateien</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Vorlage wiederherstellen</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Herunterladen</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Ignorieren</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Andere Endungen</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>fehlgeschlagen nach %n Versuch</numerusform>
                <numerusform>fehlgeschlagen nach %n Versuchen</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>wächst...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>Rechnung</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>gerade eben</translation>
        </message>
    </context>
</TS>

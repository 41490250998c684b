<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB boş</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>%@ sağlama toplamı uyuşmuyor: sunucu %@ diyor, indirme %@ veriyor. Dosya yerleştirilmedi ve sunucuda kalıyor; yeniden indirilecek.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>%@ sağlama toplamları</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>%lld dk önce</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>%lld g önce</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>%lld sa önce</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>%lld sn önce</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n etkin bağlantı</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n dosya</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n dosya bulundu</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n klasör seçildi</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n dakika</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n saniye</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n dosya sabitlenmeyi bekliyor</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>’ bağlantısında uygulanmamış değişiklikler var.</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>’ silinsin mi?</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n tane daha indiriliyor...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. Devam etmek istiyor musunuz?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...ve %n dosya daha</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/sn</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 dakika</translation>
        </message>
        <message>
            <source>10 MB/s</source>
            <translation>10 MB/sn</translation>
        </message>
        <message>
            <source>128 KB/s</source>
            <translation>128 KB/sn</translation>
        </message>
        <message>
            <source>15 seconds</source>
            <translation>15 saniye</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/sn</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 dakika</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 saniye</translation>
        </message>
        <message>
            <source>20 MB/s</source>
            <translation>20 MB/sn</translation>
        </message>
        <message>
            <source>256 KB/s</source>
            <translation>256 KB/sn</translation>
        </message>
        <message>
            <source>30 seconds</source>
            <translation>30 saniye</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/sn</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 dakika</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 saniye</translation>
        </message>
        <message>
            <source>50 MB/s</source>
            <translation>50 MB/sn</translation>
        </message>
        <message>
            <source>512 KB/s</source>
            <translation>512 KB/sn</translation>
        </message>
        <message>
            <source>ACTIVITY</source>
            <translation>ETKİNLİK</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Tarnel Hakkında</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Uzak klasöre erişim reddedildi. Yolun var olduğunu ve okuma izninizin olduğunu denetleyin.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>‘%@’ erişiminin süresi doldu. Lütfen klasörü Ayarlar'da yeniden seçin.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Etkin</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Bağlantı Ekle</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Kural Ekle</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Gelişmiş</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Gelişmiş Seçenekler</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Art arda %n başarısızlıktan sonra</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Ajans / Yaratıcı</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Tümü</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Geçiciler hariç tümü (önerilir)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Tüm dosyalar</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Tüm dosyalar (filtre yok)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Tüm dosyalar tek klasörde</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Tüm zamanlar</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Kendinden imzalı sertifikalara izin ver</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Uygula</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Şablon uygulansın mı?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Şimdi uygulansın mı, yoksa atılsın mı?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Değişiklikler uygulansın mı?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Görsel-İşitsel</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Kimlik doğrulama</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>Kimlik doğrulama başarısız. Kullanıcı adınızı ve parolanızı denetleyin.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Otomatik Yeniden Adlandırma</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>ZIP/GZ dosyalarını otomatik aç</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Yeni uzak klasörleri otomatik izle</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Davranış</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Gözat...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>BAĞLANTILAR</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>İptal</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>%lld numaralı bağlantı noktasına bağlanılamıyor</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>‘%@’ konumuna yazılamıyor. Klasörün izinlerini dosya yöneticisinde denetleyin.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Mobil veri</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Değişiklikler uygulandı</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Sağlama toplamı ve listeleme</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Seç...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Temizle</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Tümünü Temizle</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Renk</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Virgülle ayrılmış uzantılar. Örnek: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Komut veya betik</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Tarnel başladığında otomatik bağlan</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Bağlı</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Bağlantı</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Bağlantı hatası (kod %lld)%@. Bağlantı ayarlarınızı denetleyin.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>Bağlantı başarısız: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Bağlantı başarılı</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>Bağlantı zaman aşımına uğradı. Sunucu çok yavaş ya da erişilemez. Zaman aşımını artırmayı deneyin veya ağınızı denetleyin.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Bağlantılar</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Devam</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Tümünü Kopyala</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Kopyalama kipi: dosyalar sunucuda kalır.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>Sunucuya bağlanılamadı. Ana makineyi, bağlantı noktasını ve sunucunun çalıştığını denetleyin.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>Ana makine çözümlenemedi. Ana makine adının doğru olduğunu ve DNS'in çalıştığını denetleyin.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Her bağlantı için alt klasör oluştur</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Özel</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Klasör başına özel eşleme</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Özel desen (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>DNS çözümleme</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Veri ve Analitik</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Veri / Analitik</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Günler</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Sil</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>‘</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Boş uzak klasörleri sil</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>Silme başarısız: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>İndirdikten sonra dosyaları FTP'den sil</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Bu bağlantı silinsin mi?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Seçimi Kaldır</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Hedef</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Hedef Klasör</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>SSL doğrulamasını kapatır. Yalnızca sunucunuz kendinden imzalı veya süresi dolmuş bir sertifika kullanıyorsa açın.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Bağlantıyı devre dışı bırak</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Devre dışı</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>At</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Disk Alanı</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>İndirme Bildirimleri</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>İndirme başarısız: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>İndirilen ‘%@’ dosyası boş. Uzak dosya bozuk olabilir veya hâlâ yazılıyor olabilir.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>E-ticaret</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>E-ticaret / Veri</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Bağlantıyı etkinleştir</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Etkin</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Hata</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Hata Bildirimleri</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Hata: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Örnek: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Uzantı şablonu</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>FTP Kipi</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP verileri şifrelemez. Tıbbi kayıtlar için SFTP kesinlikle önerilir.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>FTP komutu başarısız. Uzak yolu veya silme izinlerini denetleyin.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Dosya</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Dosya türü</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>Dosya adı şunu içeriyor</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>Dosya adı şununla başlıyor</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filtreler</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finans</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finans / Muhasebe</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Klasör hatası</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Klasöre erişilemiyor: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>Başlangıç: </translation>
        </message>
        <message>
            <source>General</source>
            <translation>Genel</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Bildirimleri grupla (dosya listesi yerine özet)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Sağlık</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Sağlık / Uyumluluk</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Geçmiş...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Ana makine</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>‘%@’ ana makinesi bulunamadı</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>BT ve Entegrasyonlar</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>BT / Entegrasyonlar</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Hiçbir Kural Eşleşmezse</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Bilgisayar yine de uyku kipine geçerse (pil, kapak kapanması), aktarımlar duraklar ve uyanınca kendiliğinden sürer.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Yok say (indirme)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Sunucudaki tüm alt klasörlerin dosyalarını kapsar. Büyük sunucularda yavaş olabilir.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>Kesilen indirmeler kendiliğinden sürdürülür. Kapatmak için 0 yapın.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>LIST listeleri</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Dil</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Son etkinlik: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Oturum açınca Tarnel'i başlat</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>Klasörler listeleniyor...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Yerel Klasör</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Günlük Klasörü</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Günlük...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Disk alanı az</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>MLSD listeleri</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Tarnel geliştiricileri tarafından yapıldı.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Ana klasör</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Elle</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Koşul</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Adı bu metni içeren her dosyayla eşleşir</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Adı bu metinle başlayan her dosyayla eşleşir</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>En fazla derinlik: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>En yüksek indirme hızı</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>En fazla sürdürme denemesi: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>En fazla yeniden deneme: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>En küçük dosya boyutu: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>En az boş alan</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Uzak yapıyı yansıt</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>İzleniyor — süren aktarım yok</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Taşıma kipi: dosyalar sunucudan kaldırılır.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Sesi Kapat</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>Kamera FTP'm</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Ad</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Ağ</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Yeni Bağlantı</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Sağlama toplamı yok: dosyalar boyutlarıyla doğrulanır</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Bağlantı yok</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>Yapılandırılmış bağlantı yok</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Henüz günlük kaydı yok.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Alt sınır yok</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Ağ yok</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Yakın zamanda indirme yok</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Yeniden adlandırma yok — özgün dosya adı korunur</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Kural yok — tüm dosyalar ana klasöre gider</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>Alt klasör bulunamadı</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>Aktarım geçmişi yok.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Yok</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Seçilmedi</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Bildirimler</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Bağlantı hatalarında bildir</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Bağlantılar zamanlamaya göre duraklayıp sürdüğünde bildir</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>İndirmeler bitince bildir</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Çevrim dışı</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Yalnızca %@ GB disk alanı kaldı. İndirmeye devam etmek için yer açın.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Yalnızca %n veya daha fazla dosya varsa</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Yalnızca son klasör düzeyi</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Tarnel'i Aç</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Hedef klasörü aç</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Hedef klasörleri aç</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Ana klasörü aç</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>İsteğe bağlı etiket adı</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Düzenleme</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Tarihe göre düzenle (YYYY/AA/GG)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>İndirmeleri düzenle</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Diğer dosyalar</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Ayrıştırma hatası: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>Dosyanın bir kısmı alındı. Aktarım kesildi; kendiliğinden yeniden denenecek.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Pasif (önerilir)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Parola</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Desen (boş = yeniden adlandırma yok)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Desen:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Duraklat</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Uyanınca duraklat ve sürdür</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>İnternet yokken duraklat</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Mobil erişim noktasında duraklat</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>Duraklatıldı</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>Duraklatıldı — disk alanı az</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>Duraklatıldı — mobil erişim noktası algılandı</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>Duraklatıldı — internet bağlantısı yok</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotoğrafçılık</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Yalnızca fotoğraflar</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>İndirmede ses çal</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Yoklama Aralığı</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Bağlantı noktası</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>Bağlantı noktası 1 ile 65535 arasında olmalıdır</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Şablon</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Sunucunun klasörlerini listelemek için “Gözat...” düğmesine basın.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>İndirmeler sırasında uykuyu engelle</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Uyku engelleniyor — indiriliyor</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Önizleme</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Önizleme:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Baskı ve Grafik</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Baskı / Grafik</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protokol</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Çık</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>SON</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Kalıcı erişim vermek için klasörü yeniden seçin</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Beni Oku</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Önemli aktarımlar için önerilir. İndirme süresini iki katına çıkarabilir.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Uzak Klasör</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Uzak Alt Klasörler</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Uzak klasör erişimi</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Uzak yol</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>Uzak yol bir denetim karakteri içeriyor</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Araştırma / Bilim</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Dil değişikliğinin uygulanması için Tarnel'i yeniden başlatın.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Sürdür</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Vazgeçildi</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Yeniden deneniyor (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Yönlendirme Kuralı</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Yönlendirme Kuralları</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Kural etkin</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>İndirme sonrası eylemi çalıştır</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>SSH Anahtarı Yolu</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>SSL sertifikası doğrulanamadı. Sunucu sertifikası kendinden imzalı veya süresi dolmuş olabilir.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>SSL/TLS el sıkışması başarısız. Sunucu FTPS desteklemiyor olabilir ya da sertifika geçersiz.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>İSTATİSTİKLER</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Ana klasörle aynı</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Kuralı Kaydet</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Ana klasöre kaydet</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Belirli bir klasöre kaydet</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Zamanlama</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Zamanlama Bildirimleri</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Zamanlanmış: </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Ara...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Sektör şablonu</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Tümünü Seç</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>SSH anahtarı seçin (isteğe bağlı)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Bir bağlantı seçin veya yeni bir tane ekleyin.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Ayarlar...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Eşzamanlı indirme: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Boyut</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>Boyut uyuşmuyor: beklenen %@, alınan %@. Dosya hâlâ yükleniyor olabilir.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Uyku Davranışı</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>Uyku yalnızca dosyalar indirilirken engellenir. Boştayken olağan uyku davranışı sürer.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Uyku engelleme etkin</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Ses</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Kararlılık denetimi: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Başlangıç</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Durum</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Durduruldu</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Başarılı</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Eşitleme ve Aktarım</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Eşitleme Günlüğü</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Şimdi Eşitle</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Eşitleme aralığı: </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Yalnızca zamanlanmış saatlerde eşitle</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Alt klasörleri özyinelemeli eşitle</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>Eşitleniyor...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Sistem varsayılanı</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>TCP bağlantısı</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Etiketler</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (derleme %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel Geçmişi</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel Günlüğü</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Tarnel Ayarları</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Bu pencereyi kapattığınızda Tarnel arka planda çalışmaya devam eder. Yeniden açmak için Tarnel'i uygulamalar menüsünden başlatın.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n dosya indirildi</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: Bağlantı hatası</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: Yerel klasör sorunu</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: Yeni klasör algılandı</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: Aktarım başarısız</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Bağlantıyı Sına</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Metin etiketi</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>SFTP sunucusunun ana makine anahtarı, %@ ile son bağlantıdan bu yana değişti. Bu, birinin bağlantıyı dinlediği anlamına gelebilir. Değişiklik bekleniyorsa (sunucu yeniden kuruldu veya anahtarı değiştirildi), %@ satırını %@ dosyasından silin ve yeniden bağlanın.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>‘</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Bu işlem geri alınamaz.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>Mevcut yapılandırma şunun için önerilen değerlerle değiştirilecek: </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Zaman</translation>
        </message>
        <message>
            <source>To </source>
            <translation>Bitiş: </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Bugün</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Aktarım Geçmişi</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tür</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Unix glob deseni: * herhangi bir karakter dizisiyle, ? tek bir karakterle eşleşir</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Sınırsız</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Sesi Aç</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>Yükleme/kaydetme başarısız. Sunucu işlemi reddetti. Sunucudaki yazma izinlerini denetleyin.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Kullanıcı adı</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Değişkenler: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Sağlama toplamını doğrula (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Yalnızca video</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>Bekleniyor...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Disk alanı azalınca uyar ve duraklat</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Yanlış kullanıcı adı veya parola</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Hiç kullanılmaz: önceki bir kural bu dosyaları zaten alıyor</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Ses</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Belgeler</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Görüntüler</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Geçici dosyalar</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Şablona sıfırla</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>İndir</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Yok say</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Diğer uzantılar</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>dosyası %n denemeden sonra indirilemedi</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>büyüyor...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>fatura</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>az önce</translation>
        </message>
    </context>
</TS>

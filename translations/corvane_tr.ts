<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Seç veya seçimi kaldır</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Raftaki tüm ögeler</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Önceki ögeler</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Sonraki ögeler</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Seçili ögeleri kopyala</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Seçili ögeleri kaldır</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Tüm ögeler: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Görüntü</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 / %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>hazırlanıyor</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Odaklan</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Ön izleme</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Kopyala ve raftan al</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Önceki ögeler</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Sonraki ögeler</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Tüm ögeler</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Raf</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>Raf boş</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Kaldırıldı; 1 öge kaldı</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Kaldırıldı; %Ln öge kaldı</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 eklendi</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 öge eklendi</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln öge eklendi</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Raftaki ögeler: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>Raf boş. %1, panonun içeriğini buraya koyar.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 kaldırıldı; raf boş</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 kaldırıldı; 1 öge kaldı</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 kaldırıldı; %Ln öge kaldı</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>Raf gizlendi</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Sürükledikleriniz için ekranın üstünde bir raf</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;EB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 bayt</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln bayt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Rafı göster veya gizle</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Tüm ögeleri çubukta göster</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Raftaki yolları ve bağlantıları satır satır yazdır</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Onları yazdır ve raftan kaldır</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Her birinden sonra yeni satır yerine NUL karakteri yazdır</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Tercihleri aç</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Corvane’i sonlandır</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Bu yardımı yazdır</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Sürümü yazdır</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Kullanım:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Dosyaları ve bağlantıları, - ile de standart girdiden bir metni rafa koyar.
Argüman verilmezse Corvane’i başlatır ya da çalışanın rafını gösterir
veya gizler.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>%1 seçeneği yok</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>Corvane’in hiçbir seçeneği değer almaz</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 ve %2 birlikte kullanılamaz</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null, --list ve --take ile kullanılır</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>dosyalar ve bağlantılar hiçbir seçenekle kullanılmaz</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>standart girdi rafa yalnızca bir kez konabilir</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>bu bir adres değil: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>%1 dosyası yok</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>standart girdi okunamıyor ya da 256&#xa0;MiB’den büyük</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>standart girdi UTF-8 bir metin değil</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>standart girdide metin yok</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>raf verilenlerden %1 tanesini almıyor</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>standart çıktıya yazılamıyor: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane çalışıyor ama yanıt vermiyor</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>çalışan Corvane diyor ki: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>çalışan Corvane bunu yapmıyor; daha eski bir sürüm olabilir</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>ekran kullanılamıyor: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; corvane --help komutuna bakın</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>çalışan Corvane henüz hazır değil; biraz sonra yeniden deneyin</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>çalışan Corvane çok meşgul; biraz sonra yeniden deneyin</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>yazdırılanlar hâlâ rafta</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>yeterli bellek yok</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>çalışan Corvane’in yanıtı okunamıyor</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>PNG biçimine dönüştürülüyor…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Görüntü</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 karakter</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln karakter</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Karakterler sayılıyor…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Yol kopyalandı</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Görüntü kopyalandı</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Metin kopyalandı</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Bağlantı kopyalandı</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>Veri URI’si kopyalandı</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln öge kopyalandı</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Rafta kaldı</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Alınmadı</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%2 ögeden %1 tanesi alınmadı</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Dosya artık yok</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>%Ln ögeden fazla</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 öge</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln öge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Bu öge artık yok.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Değiştirilme: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Sayfalar</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Görüntü</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 sayfa</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln sayfa</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>yalnızca başlangıcı gösteriliyor</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 ögesini aç</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Yükleniyor…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Meta</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Page Down</translation>
    </message>
</context>
<context>
    <name>SessionChoice</name>
    <message>
        <source>this Wayland session takes Qt&apos;s plug-in for Wayland, which is not installed (the package qt6-wayland)</source>
        <translation>bu Wayland oturumu Qt’nin Wayland eklentisini gerektiriyor, ancak kurulu değil (qt6-wayland paketi)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>bu Wayland oturumu hiçbir programın ekran kenarına raf asmasına izin vermiyor, X11 ekranı da yok (DISPLAY ayarlı değil)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>WAYLAND_DISPLAY’in gösterdiği yerde Wayland oturumu yok, X11 ekranı da yok (DISPLAY ayarlı değil)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>rafın asılacağı bir ekran yok (ne WAYLAND_DISPLAY ne de DISPLAY ayarlı)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>bu Wayland oturumunda WAYLAND_DISPLAY ayarlı değil; bu yüzden raf, oturumun X11 ekranını kullanıyor; bazı sürüklemeler orada ona ulaşmayabilir</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY’in gösterdiği yerde yanıt veren bir birleştirici yok; bu yüzden raf, oturumun X11 ekranını kullanıyor; bazı sürüklemeler orada ona ulaşmayabilir</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>görüntü sunucunuzda XInput 2 veya XFixes yok</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>masaüstünüz bunu bildirmiyor</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, çünkü %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Sürüklemeler yalnızca ekranın üstünde algılanır</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Üst kenarın ortasına sürükleyin, raf açılır.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>Sürükleme başladığında raf açılmaz</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Sürüklemeden önce kısayoluyla veya menüden açın.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Gizli raf, işaretçi üst kenara geldiğinde görünmez</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Kısayoluyla veya menüden açın.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Başka bir programa tıklamak tüm ögelerin çubuğunu kapatmaz</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Kapatmak için Esc tuşuna basın.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Kısayollar burada belirlenemez</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Onları masaüstünüzün ayarlarından seçin.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Shift, sürükleme başladıktan sonra algılanmaz</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Sürüklemeye başlamadan önce basılı tutun, öge kalır.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Tutmak için bırakın</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Tutmak için buraya sürükleyin</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Rafı Temizle (1 öge)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Rafı Temizle (%Ln öge)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 öge</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln öge</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Rafı Göster</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Tüm Ögeleri Görüntüle…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Tercihler…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Nasıl Çalışır…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Güncellemeleri Denetle…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Corvane’den Çık</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane zaten çalışıyor, ancak yanıt vermiyor.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Biraz sonra yeniden deneyin veya %1 sürecini sonlandırıp Corvane’i yeniden başlatın.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Biraz sonra yeniden deneyin veya onu sonlandırıp Corvane’i yeniden başlatın.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Yeni sürümlerin duyurulduğu yerden gelenler okunamadı.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Daha önce şimdikinden yeni bir sürüm duyurulmuştu. Birisi haberleri sizden saklıyor olabilir, bu yüzden hiçbir şey alınmadı.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Duyurulan sürümü bu program doğrulayamıyor ya da hiçbir sürüm duyurulmamış. Hiçbir şey alınmadı.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Duyuru şu tarihten beri yenilenmedi: %1. Birisi haberleri sizden saklıyor olabilir veya saatiniz yanlış.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Corvane’in önceki güncellemelerden hatırladıkları bozulmuştu. Kenara konuldu ve sonraki denetimle yeniden başlıyor.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Yeni sürümlerin duyurulduğu yere güvenli bir bağlantıyla ulaşılamadı. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Yeni sürüm indirilemedi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>İndirilen dosyanın uzunluğu duyurulandan farklı. Dosya atıldı.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>İndirilen dosya Corvane’in geliştiricilerince imzalanmamış. Dosya atıldı.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>Diskte yeterli yer yok.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Yeni sürüm diske yazılamadı.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Vekil sunucu olmadan doğrudan soruldu.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>%1 vekil sunucusu üzerinden soruldu.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Hiçbir şey sorulmadı: vekil sunucunuzu bir betik seçiyor ve Corvane betik çalıştırmaz.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Hiçbir şey sorulmadı: vekil sunucunuz Corvane’in kullanamadığı türde.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Corvane’in güncelleme kaydı bozulmuştu</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane güncellemeleri denetleyemedi</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane güncellenmedi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Güncellemeler aranıyor…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane güncel</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>%1 sürümünü kullanıyorsunuz, en yenisi bu.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 kullanılabilir</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>Kullandığınız sürüm %1. İndirme boyutu %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Kur</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Sonra</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Corvane %1 indiriliyor…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Denetleniyor ve kuruluyor…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 kuruldu</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Corvane’in sonraki başlatılışından itibaren kullanılır. O zamana kadar önceki sürüm yanında saklanır.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 indirildi</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Corvane’in geliştiricilerince imzalandı ve indirilenler klasörünüzde %1 adıyla bulunuyor.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Güncellemeler Zamanda Geri Gidiyor…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Güncellemeler Doğrulanamıyor…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Güncellemeler Yenilenmedi…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Güncelleme Kaydı Bozulmuştu…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Güncellemeler Vekil Sunucunuzu Kullanamıyor…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%2 ögeden %1 tanesi seçili</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>İstediğinizi ekranın üstüne sürükleyin</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Varınca yeniden dışarı sürükleyin</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Rafta tutmak için Shift’i basılı tutun</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Bir dosyayı, görüntüyü veya bağlantıyı sürüklemeye başlayın; ekranın üstünden bir raf iner. Oraya bırakın. Uygulama, çalışma alanı veya ekran değiştirirken yerinde kalır.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>İşaretçiyi ekranın üstüne götürün, raf yeniden görünür. Ögeyi çalıştığınız yere sürükleyin. Ön izlemek için Boşluk tuşuna, yolunu kopyalamak için Ctrl+C tuşlarına basın.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Normalde bir öge, bıraktığınızda raftan ayrılır. Sürüklerken Shift’i basılı tutarsanız kalır; böylece aynı şeyi yeniden toplamadan birkaç yere bırakabilirsiniz.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Klavyeyle: rafın kısayoluna basın, sonra rafa yapıştırmak için %1, rafta gezinmek için %2 tuşlarını kullanın.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Klavyeyle: %1 tuşlarına basın, sonra rafa yapıştırmak için %2, rafta gezinmek için %3 tuşlarını kullanın.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Sürüm %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Birçok şey için yer. İçine sürükleyin, başka yere geçin, dışarı sürükleyin. Raf kendini boşaltır ve yoldan çekilir.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Bilgisayarınızda çalışır. Bıraktığınız hiçbir şey bize yüklenmez, günlüğe yazılmaz veya bir yere gönderilmez. Corvane ağı yalnızca bağlantının sitesinden kendi sayfasını isteyen bağlantı ön izlemeleri ve varsa güncelleme denetimi için kullanır. İkisini de Genel bölümünde kapatabilirsiniz.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Web sitesi</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Ürünün sayfasını web tarayıcısında açar</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Desteğe e-posta</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>E-posta programında yeni bir ileti açar</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Kısayolu temizle</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>Ayar klasörünüze yazılamıyor. Değişiklikler Corvane kapanana kadar geçerlidir ve saklanmaz.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Raf</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Görünen ögeler</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>Her seferinde bir tane. Kalanlara oklarla geçin.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>Aynı anda %Ln küçük resim, kalanlar için oklar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Davranış</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Oturum açılışında başlat</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane arka planda, paneldeki bir simgeyle çalışır.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Sürükleme başladığında rafı aç</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Rafı örneğin kısayolla kendiniz açmak için kapatın.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Bırakılan bağlantıların ön izlemesini göster</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Bağlantının sitesinden başlığını ve görüntüsünü ister; site böylece bağlantının sizde olduğunu öğrenir. Varsa güncelleme denetimi dışında, Corvane ağı yalnızca burada kullanır.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Corvane kapanınca ögeleri sakla</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Corvane yeniden başladığında yine rafta olurlar. O zamana kadar görüntüler ve metinler ev klasörünüzde saklanır.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Rafı göster veya gizle</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Super, Alt veya Ctrl gerekir. Temizlerseniz paneldeki simge kalır.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Tüm ögeleri göster veya gizle</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Başlangıçta atanmamıştır. Rafta Aşağı tuşu aynı işi yapar.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Denetle</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Hemen yeni bir sürüm arar</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Güncellemeleri kendiliğinden denetle</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Corvane’i sisteminizin yazılım yöneticisi güncel tutar.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Bu program nereye bakacağını bilmiyor.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Beta sürümlerini de öner</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Daha erken gelirler ve onları daha az kişi denemiştir.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Adım %1 / %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Tercihler bölmesi</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Bir kısayola basın…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Kısayol Belirle</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Bu birleşim bir karakter yazar. Super, Alt veya Ctrl içeren bir tane belirleyin.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Bu birleşimi başka bir uygulama zaten kullanıyor.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Masaüstünüz henüz yanıt vermedi.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Masaüstünüzün ayarlarında şu komuta bir tuş atayın: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Masaüstünüzün ayarlarına şu satırı ekleyin: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Masaüstünüz onu %1 olarak atadı.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Yenilikler</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndirme</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Önceki adıma gider</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Çizim: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Kullanmaya başla</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Bu rehberi kapatır</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Sonraki adıma gider</translation>
    </message>
</context>
</TS>

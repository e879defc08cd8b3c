<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Tekan</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Pilih atau batal pilih</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Pilih semua</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Semua butir di rak</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Butir sebelumnya</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Butir berikutnya</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Salin butir yang dipilih</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Hapus butir yang dipilih</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Semua butir: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Gambar</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Teks</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Tautan</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Berkas</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 dari %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>sedang disiapkan</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Tekan</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokuskan</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pratinjau</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Salin</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Salin dan ambil dari rak</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Butir sebelumnya</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Butir berikutnya</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Semua butir</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Rak</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>Rak kosong</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Dihapus; tersisa 1 butir</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Dihapus; tersisa %Ln butir</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 ditambahkan</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 butir ditambahkan</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln butir ditambahkan</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Butir di rak: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>Rak kosong. %1 menaruh isi papan klip di sini.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 dihapus; rak kosong</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 dihapus; tersisa 1 butir</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 dihapus; tersisa %Ln butir</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>Rak disembunyikan</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Rak di bagian atas layar untuk apa yang Anda seret</translation>
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
        <translation>1 bita</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln bita</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Tampilkan atau sembunyikan rak</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Tampilkan semua butir di bilah</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Cetak lokasi dan tautan di rak, satu per baris</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Cetak lalu hapus dari rak</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Cetak karakter NUL setelah tiap butir, tanpa baris baru</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Buka preferensi</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Akhiri Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Cetak bantuan ini</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Cetak versi</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Penggunaan:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Menaruh berkas dan tautan di rak, dan dengan - teks dari masukan standar.
Tanpa argumen, menjalankan Corvane, atau menampilkan atau menyembunyikan
rak dari Corvane yang sudah berjalan.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>tidak ada opsi %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>tidak ada opsi Corvane yang memakai nilai</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 dan %2 tidak dapat dipakai bersama</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null dipakai dengan --list dan --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>berkas dan tautan tidak dipakai bersama opsi</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>masukan standar hanya dapat ditaruh di rak sekali</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>ini bukan alamat: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>tidak ada berkas %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>masukan standar tidak dapat dibaca, atau lebih besar dari 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>masukan standar bukan teks UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>tidak ada teks pada masukan standar</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>rak tidak menerima %1 dari yang diberikan</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>keluaran standar tidak dapat ditulisi: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane sedang berjalan, tetapi tidak menjawab</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>Corvane yang berjalan mengatakan: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>Corvane yang berjalan tidak dapat melakukan ini; mungkin itu versi lama</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>layar tidak dapat dipakai: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; lihat corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>Corvane yang berjalan belum siap; cobalah beberapa saat lagi</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>Corvane yang berjalan terlalu sibuk; cobalah beberapa saat lagi</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>yang dicetak masih ada di rak</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>memori tidak cukup</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>jawaban Corvane yang berjalan tidak dapat dibaca</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Mengonversi ke PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Gambar</translation>
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
        <translation>Menghitung karakter…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Lokasi disalin</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Gambar disalin</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Teks disalin</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Tautan disalin</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>URI data disalin</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln butir disalin</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Tetap di rak</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Tidak diterima</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%1 dari %2 tidak diterima</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Berkas sudah tidak ada</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Umum</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Lebih dari %Ln butir</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 butir</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln butir</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Butir ini sudah tidak ada.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Diubah %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Halaman</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Gambar</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 halaman</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln halaman</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>hanya awalnya yang ditampilkan</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Buka %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Memuat…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Teks</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Rincian</translation>
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
        <translation>Spasi</translation>
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
        <translation>Kiri</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Kanan</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Atas</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bawah</translation>
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
        <translation>sesi Wayland ini memerlukan plugin Qt untuk Wayland, yang belum dipasang (paket qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>sesi Wayland ini tidak mengizinkan program menggantung rak di tepi layar, dan tidak ada pula layar X11 (DISPLAY tidak diatur)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>tidak ada sesi Wayland di tempat yang ditunjuk WAYLAND_DISPLAY, dan tidak ada pula layar X11 (DISPLAY tidak diatur)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>tidak ada layar untuk menggantung rak (WAYLAND_DISPLAY maupun DISPLAY tidak diatur)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY tidak diatur dalam sesi Wayland ini, sehingga rak memakai layar X11 milik sesi ini, dan sebagian seretan mungkin tidak sampai ke sana</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>tidak ada kompositor yang menjawab di tempat yang ditunjuk WAYLAND_DISPLAY, sehingga rak memakai layar X11 milik sesi ini, dan sebagian seretan mungkin tidak sampai ke sana</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>server tampilan Anda tidak memiliki XInput 2 atau XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>desktop Anda tidak memberitahukannya</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, karena %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Penyeretan hanya terdeteksi di bagian atas layar</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Seret ke tengah tepi atas, dan rak akan terbuka.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>Rak tidak terbuka saat penyeretan dimulai</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Buka dengan pintasannya atau dari menu sebelum menyeret.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Rak yang tersembunyi tidak muncul saat penunjuk sampai di tepi atas</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Buka dengan pintasannya atau dari menu.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Klik di program lain tidak menutup bilah semua butir</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Tekan Esc untuk menutupnya.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Pintasan tidak dapat direkam di sini</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Pilih di pengaturan desktop Anda.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Shift tidak terdeteksi setelah penyeretan dimulai</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Tahan sebelum mulai menyeret, dan butir itu tetap ada.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Lepaskan untuk menyimpan</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Seret ke sini untuk menyimpan</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Kosongkan Rak (1 butir)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Kosongkan Rak (%Ln butir)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 butir</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln butir</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Tampilkan Rak</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Lihat Semua Butir…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferensi…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Cara Kerja…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Periksa Pembaruan…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Keluar dari Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane sudah berjalan, tetapi tidak menjawab.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Cobalah beberapa saat lagi, atau akhiri proses %1 dan mulai Corvane dari awal.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Cobalah beberapa saat lagi, atau akhiri dan mulai Corvane dari awal.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Data dari tempat versi baru diumumkan tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Sebelumnya pernah diumumkan versi yang lebih baru daripada sekarang. Mungkin seseorang menahan kabar dari Anda, jadi tidak ada yang diambil.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Yang diumumkan adalah rilis yang tidak dapat diverifikasi oleh program ini, atau tidak ada sama sekali. Tidak ada yang diambil.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Pengumuman belum diperbarui sejak %1. Mungkin seseorang menahan kabar dari Anda, atau jam Anda salah.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Catatan Corvane tentang pembaruan sebelumnya rusak. Catatan itu disisihkan dan dimulai lagi pada pemeriksaan berikutnya.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Tempat versi baru diumumkan tidak dapat dicapai lewat sambungan yang aman. Coba lagi nanti.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Versi baru tidak dapat diunduh. Coba lagi nanti.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>Panjang berkas yang diunduh tidak seperti yang diumumkan. Berkas dibuang.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>Berkas yang diunduh tidak ditandatangani oleh pembuat Corvane. Berkas dibuang.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>Ruang di disk tidak cukup.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Versi baru tidak dapat ditulis ke disk.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Ditanyakan langsung, tanpa proksi.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Ditanyakan lewat proksi %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Tidak ada yang ditanyakan: proksi Anda dipilih oleh skrip, dan Corvane tidak menjalankan skrip.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Tidak ada yang ditanyakan: proksi Anda berjenis yang tidak dapat dipakai Corvane.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Catatan pembaruan Corvane rusak</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane tidak dapat memeriksa pembaruan</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane tidak diperbarui</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Mencari pembaruan…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane sudah mutakhir</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>Anda memakai versi %1, yang terbaru.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 tersedia</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>Anda memakai %1. Ukuran unduhan %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Pasang</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Unduh</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Nanti</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Mengunduh Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 dari %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Memeriksa dan memasang…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 telah dipasang</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Versi ini mulai dipakai saat Corvane dijalankan lagi. Sampai saat itu versi sebelumnya tetap disimpan di sampingnya.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 telah diunduh</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Berkas ditandatangani oleh pembuat Corvane dan ada di folder unduhan Anda sebagai %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tampilkan</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Pembaruan Mundur dalam Waktu…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Pembaruan Tidak Dapat Diverifikasi…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Info Pembaruan Belum Diperbarui…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Catatan Pembaruan Rusak…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Pembaruan Tidak Dapat Memakai Proksi Anda…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 dari %2 dipilih</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Seret apa pun ke bagian atas layar</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Seret keluar lagi saat tiba</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Tahan Shift agar tetap di rak</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Mulailah menyeret berkas, gambar, atau tautan, dan sebuah rak meluncur turun dari bagian atas layar. Jatuhkan di sana. Isinya tetap di tempat selagi Anda berpindah aplikasi, area kerja, atau layar.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Gerakkan penunjuk ke bagian atas layar dan rak muncul lagi. Seret butir ke tempat Anda bekerja. Tekan Spasi untuk pratinjau, atau Ctrl+C untuk menyalin lokasinya.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Biasanya butir meninggalkan rak ketika Anda menjatuhkannya. Tahan Shift selama menyeret dan butir itu tetap ada, sehingga hal yang sama dapat dijatuhkan di beberapa tempat tanpa mengumpulkannya lagi.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Dengan papan ketik: tekan pintasan rak, lalu %1 untuk menempel ke rak dan %2 untuk menelusurinya.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Dengan papan ketik: tekan %1, lalu %2 untuk menempel ke rak dan %3 untuk menelusurinya.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Versi %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Tempat untuk banyak hal. Seret masuk, berpindah, seret keluar. Rak mengosongkan diri dan tidak mengganggu.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Berjalan di komputer Anda. Apa pun yang Anda jatuhkan tidak diunggah kepada kami, dicatat, atau dikirim ke mana pun. Corvane memakai jaringan hanya untuk pratinjau tautan, yang meminta halaman dari situs itu sendiri, dan, bila ada, untuk pemeriksaan pembaruan. Keduanya dapat dimatikan di Umum.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Situs web</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Membuka halaman produk di peramban web</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Surel ke dukungan</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Membuka pesan baru di program surel</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Hapus pintasan</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>Folder pengaturan Anda tidak dapat ditulisi. Perubahan berlaku sampai Corvane keluar, dan tidak disimpan.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Rak</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Butir yang terlihat</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>Satu per satu. Gunakan panah untuk melihat sisanya.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln gambar mini sekaligus, dengan panah untuk sisanya.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Perilaku</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Jalankan saat log masuk</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane berjalan di latar belakang, dengan ikon di panel.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Buka rak saat penyeretan dimulai</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Matikan agar Anda yang membukanya, misalnya dengan pintasan.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Tampilkan pratinjau tautan yang dijatuhkan</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Meminta judul dan gambar dari situs itu, sehingga situs tahu Anda memiliki tautannya. Selain pemeriksaan pembaruan, bila ada, hanya saat inilah Corvane memakai jaringan.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Simpan butir saat Corvane keluar</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Semuanya kembali saat Corvane dijalankan lagi. Sampai saat itu, gambar dan teks disimpan di folder rumah Anda.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Pintasan</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Tampilkan atau sembunyikan rak</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Perlu Super, Alt, atau Ctrl. Jika dihapus, ikon di panel tetap ada.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Tampilkan atau sembunyikan semua butir</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Awalnya tidak ditetapkan. Tombol Bawah di rak berfungsi sama.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Periksa</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Segera mencari versi baru</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Pembaruan</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Periksa pembaruan secara otomatis</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Pengelola perangkat lunak sistem Anda menjaga Corvane tetap mutakhir.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Program ini tidak tahu ke mana mencari.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Tawarkan juga versi beta</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Datang lebih awal, dan lebih sedikit orang yang telah mencobanya.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Langkah %1 dari %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Halaman preferensi</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Ketik pintasan…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Rekam Pintasan</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Salin</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Kombinasi itu mengetik karakter. Rekam yang memakai Super, Alt, atau Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Aplikasi lain sudah memakai kombinasi itu.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Desktop Anda belum menjawab.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Tetapkan tombol untuk perintah ini di pengaturan desktop Anda: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Tambahkan baris ini ke pengaturan desktop Anda: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Desktop Anda menetapkannya ke %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Yang baru</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Unduhan</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Ke langkah sebelumnya</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Ilustrasi: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Mulai memakai</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Berikutnya</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Menutup panduan ini</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Ke langkah berikutnya</translation>
    </message>
</context>
</TS>

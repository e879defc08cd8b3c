<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>اضغط</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>حدّد أو ألغِ التحديد</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>حدّد الكل</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>كل العناصر على الرفّ</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>العناصر السابقة</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>العناصر اللاحقة</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>انسخ العناصر المحدّدة</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>أزل العناصر المحدّدة</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>كل العناصر: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 من %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>قيد التحضير</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>اضغط</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>ركّز</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>أزل</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>انسخ وأزل من الرفّ</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>العناصر السابقة</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>العناصر اللاحقة</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>كل العناصر</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>الرفّ</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>الرفّ فارغ</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>أُزيل؛ بقي عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>أُزيل؛ لم يبق شيء</numerusform>
            <numerusform>أُزيل؛ بقي عنصر واحد</numerusform>
            <numerusform>أُزيل؛ بقي عنصران</numerusform>
            <numerusform>أُزيل؛ بقيت %Ln عناصر</numerusform>
            <numerusform>أُزيل؛ بقي %Ln عنصرًا</numerusform>
            <numerusform>أُزيل؛ بقي %Ln عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>أُضيف %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>أُضيف عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>لم يُضف أي عنصر</numerusform>
            <numerusform>أُضيف عنصر واحد</numerusform>
            <numerusform>أُضيف عنصران</numerusform>
            <numerusform>أُضيفت %Ln عناصر</numerusform>
            <numerusform>أُضيف %Ln عنصرًا</numerusform>
            <numerusform>أُضيف %Ln عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>العناصر على الرفّ: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>الرفّ فارغ. يضع %1 محتوى الحافظة هنا.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>أُزيل %1؛ الرفّ فارغ</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>أُزيل %1؛ بقي عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>أُزيل %1؛ لم يبق شيء</numerusform>
            <numerusform>أُزيل %1؛ بقي عنصر واحد</numerusform>
            <numerusform>أُزيل %1؛ بقي عنصران</numerusform>
            <numerusform>أُزيل %1؛ بقيت %Ln عناصر</numerusform>
            <numerusform>أُزيل %1؛ بقي %Ln عنصرًا</numerusform>
            <numerusform>أُزيل %1؛ بقي %Ln عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>الرفّ مخفيّ</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>رفّ أعلى الشاشة لما تسحبه</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;ك.ب</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;م.ب</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;ج.ب</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;ت.ب</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;ب.ب</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;إ.ب</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>بايت واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln بايت</numerusform>
            <numerusform>بايت واحد</numerusform>
            <numerusform>بايتان</numerusform>
            <numerusform>%Ln بايتات</numerusform>
            <numerusform>%Ln بايتًا</numerusform>
            <numerusform>%Ln بايت</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>أظهر الرفّ أو أخفه</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>أظهر كل العناصر في الشريط</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>اطبع المسارات والروابط التي على الرفّ، واحدًا في كل سطر</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>اطبعها وأزلها من الرفّ</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>اطبع محرف NUL بعد كل منها، بلا سطر جديد</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>افتح التفضيلات</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>أنهِ Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>اطبع هذه المساعدة</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>اطبع الإصدار</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>الاستخدام:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>يضع الملفات والروابط على الرفّ، ومع - نصًا من الدخل القياسي.
من دون معطيات يبدأ Corvane، أو يُظهر رفّ البرنامج الذي يعمل
أو يخفيه.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>لا يوجد خيار باسم %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>لا يأخذ أي خيار من خيارات Corvane قيمة</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>لا يجتمع %1 و%2</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>يُستخدم --null مع --list و--take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>لا تُستخدم الملفات والروابط مع أي خيار</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>لا يمكن وضع الدخل القياسي على الرفّ إلا مرة واحدة</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>هذا ليس عنوانًا: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>لا يوجد ملف %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>تعذّرت قراءة الدخل القياسي، أو هو أكبر من 256&#xa0;ميبيبايت</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>الدخل القياسي ليس نصًا بترميز UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>لا نص في الدخل القياسي</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>لا يقبل الرفّ %1 مما أُعطي</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>تعذّرت الكتابة إلى الخرج القياسي: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>يعمل Corvane لكنه لا يستجيب</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>يقول Corvane العامل: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>لا يفعل Corvane العامل هذا؛ ربما هو إصدار أقدم</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>تعذّر استخدام الشاشة: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1؛ انظر corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>لم يجهز Corvane العامل بعد؛ حاول مجددًا بعد لحظة</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>إن Corvane العامل مشغول جدًا؛ حاول مجددًا بعد لحظة</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>ما طُبع ما زال على الرفّ</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>لا توجد ذاكرة كافية</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>تعذّرت قراءة إجابة Corvane العامل</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>يحوَّل إلى PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>محرف واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>لا محارف</numerusform>
            <numerusform>محرف واحد</numerusform>
            <numerusform>محرفان</numerusform>
            <numerusform>%Ln محارف</numerusform>
            <numerusform>%Ln محرفًا</numerusform>
            <numerusform>%Ln محرف</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>تُعدّ المحارف…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>نُسخ المسار</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>نُسخت الصورة</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>نُسخ النص</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>نُسخ الرابط</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>نُسخ عنوان URI للبيانات</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>لم يُنسخ أي عنصر</numerusform>
            <numerusform>نُسخ عنصر واحد</numerusform>
            <numerusform>نُسخ عنصران</numerusform>
            <numerusform>نُسخت %Ln عناصر</numerusform>
            <numerusform>نُسخ %Ln عنصرًا</numerusform>
            <numerusform>نُسخ %Ln عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>بقي على الرفّ</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>لم يُقبل</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>لم يُقبل %1 من %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>لم يعد الملف موجودًا</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>About</source>
        <translation>عن البرنامج</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>أكثر من %Ln عنصر</numerusform>
            <numerusform>أكثر من عنصر واحد</numerusform>
            <numerusform>أكثر من عنصرين</numerusform>
            <numerusform>أكثر من %Ln عناصر</numerusform>
            <numerusform>أكثر من %Ln عنصرًا</numerusform>
            <numerusform>أكثر من %Ln عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد</numerusform>
            <numerusform>عنصران</numerusform>
            <numerusform>%Ln عناصر</numerusform>
            <numerusform>%Ln عنصرًا</numerusform>
            <numerusform>%Ln عنصر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>لم يعد هذا العنصر موجودًا.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>عُدّل في %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>صفحات</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>صفحة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>لا صفحات</numerusform>
            <numerusform>صفحة واحدة</numerusform>
            <numerusform>صفحتان</numerusform>
            <numerusform>%Ln صفحات</numerusform>
            <numerusform>%Ln صفحة</numerusform>
            <numerusform>%Ln صفحة</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>تظهر البداية فقط</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>افتح</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>افتح %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>يحمَّل…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
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
        <translation>مسافة</translation>
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
        <translation>يسار</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>أسفل</translation>
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
        <translation>تحتاج جلسة Wayland هذه إلى ملحق Qt لـ Wayland، وهو غير مثبّت (الحزمة qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>لا تسمح جلسة Wayland هذه لأي برنامج بتعليق رفّ على حافة الشاشة، ولا توجد شاشة X11 أيضًا (DISPLAY غير مضبوط)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>لا توجد جلسة Wayland حيث يشير WAYLAND_DISPLAY، ولا شاشة X11 أيضًا (DISPLAY غير مضبوط)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>لا توجد شاشة يُعلّق عليها الرفّ (لم يُضبط WAYLAND_DISPLAY ولا DISPLAY)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>لم يُضبط WAYLAND_DISPLAY في جلسة Wayland هذه، لذلك يستخدم الرفّ شاشة X11 الخاصة بالجلسة، وقد لا تصل إليه بعض عمليات السحب هناك</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>لا يستجيب أي خادم عرض حيث يشير WAYLAND_DISPLAY، لذلك يستخدم الرفّ شاشة X11 الخاصة بهذه الجلسة، وقد لا تصل إليه بعض عمليات السحب هناك</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>خادم العرض لديك يفتقر إلى XInput 2 أو XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>سطح مكتبك يحتفظ بذلك لنفسه</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1، لأن %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>لا يُلاحَظ السحب إلا عند أعلى الشاشة</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>اسحب إلى منتصف الحافة العليا فينفتح الرفّ.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>لا ينفتح الرفّ من تلقاء نفسه عند بدء السحب</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>افتحه باختصاره أو من القائمة قبل السحب.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>لا يظهر الرفّ المخفي حين يبلغ المؤشر الحافة العليا</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>افتحه باختصاره أو من القائمة.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>لا يغلق النقر في برنامج آخر شريطَ كل العناصر</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>اضغط Esc لإغلاقه.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>لا يمكن تسجيل الاختصارات هنا</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>اخترها في إعدادات سطح مكتبك.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>لا يُلاحَظ مفتاح Shift بعد بدء السحب</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>اضغط عليه باستمرار قبل بدء السحب فيبقى العنصر.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>أفلت لتحفظه هنا</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>اسحب إلى هنا لتحفظه</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>أفرغ الرفّ (عنصر واحد)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>أفرغ الرفّ</numerusform>
            <numerusform>أفرغ الرفّ (عنصر واحد)</numerusform>
            <numerusform>أفرغ الرفّ (عنصران)</numerusform>
            <numerusform>أفرغ الرفّ (%Ln عناصر)</numerusform>
            <numerusform>أفرغ الرفّ (%Ln عنصرًا)</numerusform>
            <numerusform>أفرغ الرفّ (%Ln عنصر)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane</numerusform>
            <numerusform>Corvane — عنصر واحد</numerusform>
            <numerusform>Corvane — عنصران</numerusform>
            <numerusform>Corvane — %Ln عناصر</numerusform>
            <numerusform>Corvane — %Ln عنصرًا</numerusform>
            <numerusform>Corvane — %Ln عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>أظهر الرفّ</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>اعرض كل العناصر…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>التفضيلات…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>كيف يعمل…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>ابحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>أنهِ Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>‏Corvane يعمل بالفعل، لكنه لا يستجيب.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>حاول مجددًا بعد لحظة، أو أنهِ العملية %1 وابدأ Corvane من جديد.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>حاول مجددًا بعد لحظة، أو أنهِه وابدأ Corvane من جديد.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>تعذّرت قراءة ما جاء من المكان الذي تُعلَن فيه الإصدارات الجديدة.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>أُعلن من قبل عن إصدار أحدث من المعلَن الآن. ربما يحجب أحدهم الأخبار عنك، لذلك لم يؤخذ شيء.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>المعلَن إصدار لا تستطيع هذه النسخة التحقق منه، أو لا شيء. لم يؤخذ شيء.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>لم يُجدَّد المعلَن منذ %1. ربما يحجب أحدهم الأخبار عنك، أو أن ساعتك غير صحيحة.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>ما يتذكره Corvane من التحديثات السابقة كان تالفًا. وُضع جانبًا ويبدأ من جديد مع الفحص التالي.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>تعذّر بلوغ المكان الذي تُعلَن فيه الإصدارات الجديدة عبر اتصال آمن. حاول لاحقًا.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>تعذّر تنزيل الإصدار الجديد. حاول لاحقًا.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>طول الملف المنزَّل غير الطول المعلَن. لذلك أُهمل.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>الملف المنزَّل غير موقَّع من مطوّري Corvane. لذلك أُهمل.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>لا توجد مساحة كافية على القرص.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>تعذّرت كتابة الإصدار الجديد على القرص.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>جرى السؤال مباشرةً من دون وسيط.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>جرى السؤال عبر الوسيط %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>لم يجرِ أي سؤال: وسيطك يختاره برنامج نصي، ولا يشغّل Corvane برامج نصية.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>لم يجرِ أي سؤال: وسيطك من نوع لا يستطيع Corvane استخدامه.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>كان سجل تحديثات Corvane تالفًا</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>تعذّر على Corvane البحث عن تحديثات</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>لم يُحدَّث Corvane</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>يُبحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>‏Corvane محدَّث</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>لديك الإصدار %1، وهو الأحدث.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>‏Corvane %1 متاح</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>لديك %1. حجم التنزيل %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>ثبّت</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>نزّل</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>ينزَّل Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>يُفحص ويُثبَّت…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>ثُبّت Corvane %1</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>سيُستخدم في المرة التالية التي يبدأ فيها Corvane. ويبقى السابق بجانبه حتى ذلك الحين.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>نُزّل Corvane %1</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>وقّعه مطوّرو Corvane، وهو في مجلد التنزيلات باسم %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>أظهر</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>التحديثات ترجع في الزمن…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>لا يمكن التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>لم تُجدَّد التحديثات…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>تلف سجل التحديثات…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>لا تستطيع التحديثات استخدام وسيطك…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>حُدّد %1 من %2</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>اسحب أي شيء إلى أعلى الشاشة</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>اسحبه إلى الخارج عند وصولك</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>استمر بالضغط على Shift ليبقى على الرفّ</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>ابدأ بسحب ملف أو صورة أو رابط، فينزلق رفّ من أعلى الشاشة. ألقِ ما تسحبه هناك. يبقى في مكانه وأنت تنتقل بين البرامج أو مساحات العمل أو الشاشات.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>حرّك المؤشر إلى أعلى الشاشة فيظهر الرفّ من جديد. اسحب العنصر إلى حيث تعمل. اضغط مفتاح المسافة لمعاينته، أو Ctrl+C لنسخ مساره.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>يغادر العنصر الرفّ عادةً عندما تلقيه. استمر بالضغط على Shift وأنت تسحبه فيبقى، وبذلك تلقي الشيء نفسه في عدة أماكن من دون أن تجمعه مرة أخرى.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>بلوحة المفاتيح: اضغط اختصار الرفّ، ثم %1 للّصق عليه و%2 للتنقل فيه.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>بلوحة المفاتيح: اضغط %1، ثم %2 للّصق على الرفّ و%3 للتنقل فيه.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>الإصدار %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>متّسع لأشياء كثيرة. اسحب إليه، وانتقل، ثم اسحب منه. يفرغ الرفّ نفسه ولا يعترض طريقك.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>يعمل على حاسوبك. لا شيء مما تلقيه يُرفع إلينا أو يُسجَّل أو يُرسل إلى أي مكان. يستخدم Corvane الشبكة لمعاينة الروابط فقط، وهي تطلب من الموقع المقصود صفحته، وللبحث عن تحديثات حيثما وُجد. يمكنك إيقافهما في «عام».</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>يفتح صفحة البرنامج في متصفح الوب</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>راسل الدعم</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>يفتح رسالة جديدة في برنامج البريد</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>امسح الاختصار</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>تتعذر الكتابة في مجلد إعداداتك. تسري التغييرات حتى ينتهي Corvane، ولا تُحفظ.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>الرفّ</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>العناصر الظاهرة</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>عنصر واحد في كل مرة. استخدم الأسهم لتصفح البقية.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln مصغَّرة معًا، مع أسهم للبقية.</numerusform>
            <numerusform>مصغَّرة واحدة، مع أسهم للبقية.</numerusform>
            <numerusform>مصغَّرتان معًا، مع أسهم للبقية.</numerusform>
            <numerusform>%Ln مصغَّرات معًا، مع أسهم للبقية.</numerusform>
            <numerusform>%Ln مصغَّرة معًا، مع أسهم للبقية.</numerusform>
            <numerusform>%Ln مصغَّرة معًا، مع أسهم للبقية.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>السلوك</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>ابدأ عند الولوج</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>يعمل Corvane في الخلفية، وله أيقونة في شريط النظام.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>افتح الرفّ عند بدء السحب</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>عطّله لتفتحه بنفسك، بالاختصار مثلًا.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>أظهر معاينة للروابط الملقاة</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>يسأل الموقع المقصود عن عنوانه وصورته، فيعلم الموقع أن الرابط لديك. عدا البحث عن تحديثات، إن وُجد، لا يستخدم Corvane الشبكة إلا لهذا.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>احتفظ بالعناصر عند إنهاء Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>تعود عند التشغيل التالي. وحتى ذلك الحين تُخزَّن الصور والنصوص في مجلد المنزل.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>أظهر الرفّ أو أخفه</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>يلزم Super أو Alt أو Ctrl. إن مسحته بقيت الأيقونة في شريط النظام.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>أظهر كل العناصر أو أخفها</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>غير معيّن في البداية. مفتاح السهم الأسفل على الرفّ يفعل الشيء نفسه.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>ابحث الآن</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>يبحث فورًا عن إصدار جديد</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>ابحث عن تحديثات تلقائيًا</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>يتولى مدير البرمجيات في نظامك تحديث Corvane.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>لا تعرف هذه النسخة أين تبحث.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>اعرض الإصدارات التجريبية أيضًا</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>تأتي أبكر، وقد جرّبها عدد أقل من الناس.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>الخطوة %1 من %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>قسم التفضيلات</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>اضغط اختصارًا…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>سجّل اختصارًا</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>هذه التركيبة تكتب محرفًا. سجّل واحدة مع Super أو Alt أو Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>يستخدم برنامج آخر هذه التركيبة بالفعل.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>لم يُجب سطح مكتبك بعد.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>عيّن مفتاحًا لهذا الأمر في إعدادات سطح مكتبك: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>أضف هذا السطر إلى إعدادات سطح مكتبك: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>عيّن سطح مكتبك له %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>ما الجديد</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>التنزيل</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>ينتقل إلى الخطوة السابقة</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>رسم توضيحي: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>ابدأ الاستخدام</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>يغلق هذا الدليل</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>ينتقل إلى الخطوة التالية</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>לחיצה</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>בחירה או ביטול בחירה</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>בחירת הכול</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>כל הפריטים שעל המדף</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>הפריטים הקודמים</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>הפריטים הבאים</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>העתקת הפריטים שנבחרו</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>הסרת הפריטים שנבחרו</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>כל הפריטים: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>תיקייה</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>טקסט</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>קישור</translation>
    </message>
    <message>
        <source>File</source>
        <translation>קובץ</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 מתוך %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>בהכנה</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>לחיצה</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>מיקוד</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>תצוגה מקדימה</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>העתקה והסרה מהמדף</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>הפריטים הקודמים</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>הפריטים הבאים</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>כל הפריטים</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>מדף</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>המדף ריק</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>הוסר; נשאר פריט אחד</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>הוסר; נשאר פריט אחד</numerusform>
            <numerusform>הוסר; נשארו %Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>נוסף: %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>נוסף פריט אחד</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>נוסף פריט אחד</numerusform>
            <numerusform>נוספו %Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>הפריטים שעל המדף: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>המדף ריק. %1 להדבקת תוכן לוח הגזירים כאן.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>הוסר: %1; המדף ריק</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>הוסר: %1; נשאר פריט אחד</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>הוסר: %1; נשאר פריט אחד</numerusform>
            <numerusform>הוסר: %1; נשארו %Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>המדף מוסתר</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>מדף בראש המסך לכל מה שגוררים</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;ק״ב</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;מ״ב</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;ג״ב</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;ט״ב</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;פ״ב</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;א״ב</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>בית אחד</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>בית אחד</numerusform>
            <numerusform>%Ln בתים</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>הצגה או הסתרה של המדף</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>הצגת כל הפריטים בסרגל</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>הדפסת הנתיבים והקישורים שעל המדף, אחד בשורה</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>הדפסתם והסרתם מהמדף</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>הדפסת תו NUL אחרי כל אחד, בלי שורה חדשה</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>פתיחת ההעדפות</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>סיום Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>הדפסת העזרה הזו</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>הדפסת הגרסה</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>שימוש:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>מניח קבצים וקישורים על המדף, ועם - טקסט מהקלט התקני.
בלי ארגומנטים מפעיל את Corvane, או מציג או מסתיר את המדף של זה
שפועל.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>אין אפשרות %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>אף אפשרות של Corvane אינה מקבלת ערך</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 ו־%2 אינן יכולות לבוא יחד</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null באה עם --list ו־--take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>קבצים וקישורים אינם באים עם אף אפשרות</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>אפשר להניח את הקלט התקני על המדף פעם אחת בלבד</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>זו אינה כתובת: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>אין קובץ %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>אי אפשר לקרוא את הקלט התקני, או שהוא גדול מ־256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>הקלט התקני אינו טקסט ב־UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>אין טקסט בקלט התקני</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>המדף אינו מקבל %1 ממה שניתן</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>אי אפשר לכתוב לפלט התקני: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane פועל, אבל אינו מגיב</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>ה־Corvane הפועל אומר: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>ה־Corvane הפועל אינו עושה את זה; אולי זו גרסה ישנה יותר</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>אי אפשר להשתמש בתצוגה: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; ראו corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>ה־Corvane הפועל עדיין אינו מוכן; יש לנסות שוב בעוד רגע</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>ה־Corvane הפועל עמוס מדי; יש לנסות שוב בעוד רגע</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>מה שהודפס עדיין נמצא על המדף</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>אין מספיק זיכרון</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>אי אפשר לקרוא את התשובה של ה־Corvane הפועל</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>תיקייה</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>בהמרה ל־PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>תו אחד</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>תו אחד</numerusform>
            <numerusform>%Ln תווים</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>התווים נספרים…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>הנתיב הועתק</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>התמונה הועתקה</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>הטקסט הועתק</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>הקישור הועתק</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>כתובת URI של הנתונים הועתקה</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>פריט אחד הועתק</numerusform>
            <numerusform>%Ln פריטים הועתקו</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>נשאר על המדף</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>לא התקבל</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>לא התקבלו: %1 מתוך %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>הקובץ כבר אינו קיים</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>כללי</translation>
    </message>
    <message>
        <source>About</source>
        <translation>על אודות</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>יותר מפריט אחד</numerusform>
            <numerusform>יותר מ־%Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>פריט אחד</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>פריט אחד</numerusform>
            <numerusform>%Ln פריטים</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>הפריט הזה כבר אינו קיים.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>מועד השינוי: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>עמודים</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>עמוד אחד</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>עמוד אחד</numerusform>
            <numerusform>%Ln עמודים</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>מוצגת רק ההתחלה</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>פתיחת %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>בטעינה…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>טקסט</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>פרטים</translation>
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
        <translation>רווח</translation>
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
        <translation>שמאלה</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>ימינה</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>למעלה</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>למטה</translation>
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
        <translation>הפעלת Wayland הזאת צריכה את התוסף של Qt ל־Wayland, שאינו מותקן (החבילה qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>הפעלת Wayland הזאת לא מאפשרת לתוכניות לתלות מדף בקצה המסך, וגם תצוגת X11 אין (DISPLAY לא הוגדר)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>אין הפעלת Wayland במקום ש־WAYLAND_DISPLAY מציין, וגם תצוגת X11 אין (DISPLAY לא הוגדר)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>אין תצוגה לתלות עליה את המדף (לא הוגדרו WAYLAND_DISPLAY ו־DISPLAY)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY לא הוגדר בהפעלת Wayland הזאת, ולכן המדף משתמש בתצוגת X11 של ההפעלה, שבה ייתכן שחלק מהגרירות לא יגיעו אליו</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>אין שרת תצוגה שעונה במקום ש־WAYLAND_DISPLAY מציין, ולכן המדף משתמש בתצוגת X11 של ההפעלה הזאת, שבה ייתכן שחלק מהגרירות לא יגיעו אליו</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>לשרת התצוגה שלך חסרים XInput 2 או XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>שולחן העבודה שלך שומר זאת לעצמו</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, כי %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>גרירה מזוהה רק בראש המסך</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>יש לגרור אל אמצע הקצה העליון והמדף ייפתח.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>המדף אינו נפתח כשמתחילה גרירה</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>יש לפתוח אותו בקיצור המקשים או מהתפריט לפני הגרירה.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>מדף מוסתר אינו מופיע כשהסמן מגיע לקצה העליון</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>יש לפתוח אותו בקיצור המקשים או מהתפריט.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>לחיצה בתוכנית אחרת אינה סוגרת את סרגל כל הפריטים</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>מקש Esc סוגר אותו.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>אי אפשר להקליט כאן קיצורי מקשים</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>יש לבחור אותם בהגדרות שולחן העבודה.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>מקש Shift אינו מזוהה אחרי שהגרירה התחילה</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>יש להחזיק אותו לפני תחילת הגרירה, והפריט נשאר.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>שחרור לשמירה כאן</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>גרירה לכאן לשמירה</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>ריקון המדף (פריט אחד)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>ריקון המדף (פריט אחד)</numerusform>
            <numerusform>ריקון המדף (%Ln פריטים)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — פריט אחד</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — פריט אחד</numerusform>
            <numerusform>Corvane — %Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>הצגת המדף</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>הצגת כל הפריטים…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>העדפות…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>איך זה עובד…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>חיפוש עדכונים…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>יציאה מ־Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>‏Corvane כבר פועל, אבל אינו מגיב.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>יש לנסות שוב בעוד רגע, או לסיים את התהליך %1 ולהפעיל את Corvane מחדש.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>יש לנסות שוב בעוד רגע, או לסיים אותו ולהפעיל את Corvane מחדש.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>אי אפשר היה לקרוא את מה שהגיע מהמקום שבו מוכרזות גרסאות חדשות.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>בעבר הוכרזה גרסה חדשה יותר מזו שמוכרזת עכשיו. ייתכן שמישהו מסתיר ממך חדשות, ולכן דבר לא נלקח.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>הוכרזה גרסה שהתוכנית הזו אינה יכולה לאמת, או שלא הוכרז דבר. דבר לא נלקח.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>ההכרזה לא חודשה מאז %1. ייתכן שמישהו מסתיר ממך חדשות, או שהשעון שלך שגוי.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>מה ש־Corvane זכר מעדכונים קודמים נפגם. הוא הונח בצד ויתחיל מחדש בבדיקה הבאה.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>אי אפשר היה להגיע בחיבור מאובטח אל המקום שבו מוכרזות גרסאות חדשות. כדאי לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>אי אפשר היה להוריד את הגרסה החדשה. כדאי לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>אורך הקובץ שהורד שונה ממה שהוכרז. הקובץ הושלך.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>הקובץ שהורד אינו חתום בידי יוצרי Corvane. הקובץ הושלך.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>אין די מקום בדיסק.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>אי אפשר היה לכתוב את הגרסה החדשה לדיסק.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>נשאל ישירות, בלי מתווך.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>נשאל דרך המתווך %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>דבר לא נשאל: תסריט בוחר את המתווך שלך, ו־Corvane אינו מריץ תסריטים.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>דבר לא נשאל: המתווך שלך מסוג ש־Corvane אינו יכול להשתמש בו.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>רישום העדכונים של Corvane נפגם</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>‏Corvane לא הצליח לחפש עדכונים</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>‏Corvane לא עודכן</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>מתבצע חיפוש עדכונים…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>‏Corvane מעודכן</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>ברשותך גרסה %1, החדשה ביותר.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>‏Corvane %1 זמין</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>ברשותך %1. גודל ההורדה %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>התקנה</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>הורדה</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>מאוחר יותר</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>‏Corvane %1 בהורדה…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>בבדיקה ובהתקנה…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>‏Corvane %1 הותקן</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>הוא ישמש מההפעלה הבאה של Corvane. עד אז הגרסה הקודמת נשמרת לצידו.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>ההורדה של Corvane %1 הסתיימה</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>הוא חתום בידי יוצרי Corvane ונמצא בתיקיית ההורדות שלך בשם %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>הצגה</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>העדכונים חוזרים אחורה בזמן…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>אי אפשר לאמת עדכונים…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>העדכונים לא חודשו…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>רישום העדכונים נפגם…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>העדכונים אינם יכולים להשתמש במתווך שלך…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>נבחרו %1 מתוך %2</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>גרירת כל דבר אל ראש המסך</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>גרירה החוצה כשמגיעים</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>החזקת Shift משאירה על המדף</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>מתחילים לגרור קובץ, תמונה או קישור, ומדף גולש מטה מראש המסך. משחררים שם. הדבר נשאר במקומו בזמן מעבר בין יישומים, מרחבי עבודה או מסכים.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>מזיזים את הסמן אל ראש המסך והמדף מופיע שוב. גוררים את הפריט אל מקום העבודה. מקש הרווח מציג תצוגה מקדימה, ו־Ctrl+C מעתיק את הנתיב.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>בדרך כלל פריט עוזב את המדף כשמשחררים אותו. החזקת Shift בזמן הגרירה משאירה אותו, כך שאפשר לשחרר את אותו הדבר בכמה מקומות בלי לאסוף אותו שוב.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>במקלדת: קיצור המקשים של המדף, ואז %1 להדבקה עליו ו־%2 למעבר בו.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>במקלדת: %1, ואז %2 להדבקה על המדף ו־%3 למעבר בו.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>גרסה %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>מקום לדברים רבים. גוררים פנימה, עוברים הלאה, גוררים החוצה. המדף מתרוקן מעצמו ואינו מפריע.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>פועל במחשב שלך. דבר ממה ששוחרר כאן אינו מועלה אלינו, נרשם או נשלח לשום מקום. Corvane משתמש ברשת רק לתצוגה מקדימה של קישורים, המבקשת מהאתר את הדף שלו, ולחיפוש עדכונים במקום שהוא קיים. אפשר לכבות את שניהם ב״כללי״.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>אתר</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>פותח את דף המוצר בדפדפן</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>דוא״ל לתמיכה</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>פותח הודעה חדשה בתוכנית הדואר</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>ניקוי קיצור המקשים</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>אי אפשר לכתוב לתיקיית ההגדרות שלך. השינויים תקפים עד היציאה מ־Corvane ואינם נשמרים.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>מדף</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>פריטים מוצגים</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>אחד בכל פעם. החיצים עוברים בין האחרים.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>תמונה ממוזערת אחת, עם חיצים לשאר.</numerusform>
            <numerusform>%Ln תמונות ממוזערות יחד, עם חיצים לשאר.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>התנהגות</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>הפעלה בכניסה למערכת</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>‏Corvane פועל ברקע, עם סמל בלוח.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>פתיחת המדף כשמתחילה גרירה</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>כיבוי ישאיר לך את הפתיחה, למשל בקיצור המקשים.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>תצוגה מקדימה של קישורים ששוחררו</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>מבקש מהאתר את הכותרת והתמונה שלו, וכך האתר יודע שהקישור ברשותך. מלבד חיפוש עדכונים, אם הוא קיים, רק כאן Corvane משתמש ברשת.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>שמירת הפריטים ביציאה מ־Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>הם יחזרו בהפעלה הבאה. עד אז תמונות וטקסטים נשמרים בתיקיית הבית.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>קיצורי מקשים</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>הצגה או הסתרה של המדף</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>דרוש Super, Alt או Ctrl. גם אחרי ניקוי נשאר הסמל בלוח.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>הצגה או הסתרה של כל הפריטים</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>לא מוגדר בהתחלה. מקש החץ למטה על המדף עושה אותו דבר.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>בדיקה עכשיו</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>מחפש מייד גרסה חדשה</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>עדכונים</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>חיפוש עדכונים אוטומטי</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>מנהל התוכנות של המערכת שלך מעדכן את Corvane.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>התוכנית הזו אינה יודעת היכן לחפש.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>להציע גם גרסאות בטא</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>הן מגיעות מוקדם יותר, ופחות אנשים ניסו אותן.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>שלב %1 מתוך %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>חלק של ההעדפות</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>יש להקיש קיצור…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>הקלטת קיצור</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>הצירוף הזה כותב תו. יש להקליט צירוף עם Super, Alt או Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>יישום אחר כבר משתמש בצירוף הזה.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>שולחן העבודה שלך טרם השיב.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>יש לשייך מקש לפקודה הזו בהגדרות שולחן העבודה: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>יש להוסיף את השורה הזו להגדרות שולחן העבודה: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>שולחן העבודה שלך שייך אותו אל %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>מה חדש</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>הורדה</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>חזרה</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>עובר לשלב הקודם</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>איור: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>להתחיל להשתמש</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>הבא</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>סוגר את המדריך</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>עובר לשלב הבא</translation>
    </message>
</context>
</TS>

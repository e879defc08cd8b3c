<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Auswählen oder abwählen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Alle Elemente der Ablage</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Frühere Elemente</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Spätere Elemente</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Die ausgewählten Elemente kopieren</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Die ausgewählten Elemente entfernen</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Alle Elemente: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 von %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>wird vorbereitet</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokussieren</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Kopieren und aus der Ablage nehmen</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Frühere Elemente</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Spätere Elemente</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Alle Elemente</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>Die Ablage ist leer</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Entfernt; 1 Element bleibt</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Entfernt; %Ln Element bleibt</numerusform>
            <numerusform>Entfernt; %Ln Elemente bleiben</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 wurde hinzugefügt</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 Element wurde hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln Element wurde hinzugefügt</numerusform>
            <numerusform>%Ln Elemente wurden hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Elemente der Ablage: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>Die Ablage ist leer. %1 legt den Inhalt der Zwischenablage hier ab.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 wurde entfernt; die Ablage ist leer</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 wurde entfernt; 1 Element bleibt</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 wurde entfernt; %Ln Element bleibt</numerusform>
            <numerusform>%1 wurde entfernt; %Ln Elemente bleiben</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>Die Ablage ist verborgen</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Eine Ablage am oberen Bildschirmrand für alles, was Sie ziehen</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;kB</translation>
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
        <translation>1 Byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Ablage anzeigen oder verbergen</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Alle Elemente in der Leiste anzeigen</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Die Pfade und Links der Ablage ausgeben, je eine Zeile</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Sie ausgeben und aus der Ablage entfernen</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Nach jedem ein NUL-Zeichen statt eines Zeilenendes ausgeben</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Die Einstellungen öffnen</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Corvane beenden</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Diese Hilfe ausgeben</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Die Version ausgeben</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Aufruf:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Legt Dateien und Links in die Ablage, und mit - einen Text von der Standardeingabe.
Ohne Argumente wird Corvane gestartet, oder die Ablage des laufenden Programms
angezeigt oder verborgen.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>eine Option %1 gibt es nicht</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>keine Option von Corvane nimmt einen Wert</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 und %2 gehen nicht zusammen</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null gehört zu --list und --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>Dateien und Links gehen mit keiner Option zusammen</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>die Standardeingabe kann nur einmal in die Ablage gelegt werden</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>das ist keine Adresse: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>eine Datei %1 gibt es nicht</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>die Standardeingabe kann nicht gelesen werden oder ist größer als 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>die Standardeingabe ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>in der Standardeingabe ist kein Text</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>die Ablage nimmt %1 der angegebenen Elemente nicht an</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>die Standardausgabe kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane läuft, antwortet aber nicht</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>das laufende Corvane meldet: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>das laufende Corvane kann das nicht; vielleicht ist es eine ältere Version</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>die Anzeige kann nicht benutzt werden: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; siehe corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>das laufende Corvane ist noch nicht bereit; versuchen Sie es gleich noch einmal</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>das laufende Corvane hat zu viel zu tun; versuchen Sie es gleich noch einmal</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>was ausgegeben wurde, ist noch in der Ablage</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>es ist nicht genug Arbeitsspeicher frei</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>die Antwort des laufenden Corvane kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Wird in PNG umgewandelt&#xa0;…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 Zeichen</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln Zeichen</numerusform>
            <numerusform>%Ln Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Zeichen werden gezählt&#xa0;…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Pfad kopiert</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Bild kopiert</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Text kopiert</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Link kopiert</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>Daten-URI kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln Element kopiert</numerusform>
            <numerusform>%Ln Elemente kopiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Bleibt in der Ablage</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Es wurde nicht angenommen</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%1 von %2 wurden nicht angenommen</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Die Datei ist nicht mehr da</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Mehr als %Ln Element</numerusform>
            <numerusform>Mehr als %Ln Elemente</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Element</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln Element</numerusform>
            <numerusform>%Ln Elemente</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Dieses Element ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Geändert am %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln Seite</numerusform>
            <numerusform>%Ln Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>nur der Anfang wird angezeigt</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
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
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
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
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Bild ab</translation>
    </message>
</context>
<context>
    <name>SessionChoice</name>
    <message>
        <source>this Wayland session takes Qt&apos;s plug-in for Wayland, which is not installed (the package qt6-wayland)</source>
        <translation>diese Wayland-Sitzung braucht das Wayland-Plugin von Qt, das nicht installiert ist (das Paket qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>diese Wayland-Sitzung lässt kein Programm eine Ablage an den Bildschirmrand hängen, und eine X11-Anzeige gibt es auch nicht (DISPLAY ist nicht gesetzt)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>wo WAYLAND_DISPLAY hinzeigt, gibt es keine Wayland-Sitzung, und eine X11-Anzeige gibt es auch nicht (DISPLAY ist nicht gesetzt)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>es gibt keine Anzeige für die Ablage (weder WAYLAND_DISPLAY noch DISPLAY ist gesetzt)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY ist in dieser Wayland-Sitzung nicht gesetzt; deshalb benutzt die Ablage die X11-Anzeige der Sitzung, auf der manches Gezogene sie vielleicht nicht erreicht</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>wo WAYLAND_DISPLAY hinzeigt, antwortet kein Compositor; deshalb benutzt die Ablage die X11-Anzeige dieser Sitzung, auf der manches Gezogene sie vielleicht nicht erreicht</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>Ihrem Anzeigeserver XInput 2 oder XFixes fehlt</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>Ihre Arbeitsumgebung das für sich behält</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, weil %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Ziehvorgänge werden nur am oberen Bildschirmrand bemerkt</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Ziehen Sie zur Mitte des oberen Randes, dann öffnet sich die Ablage.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>Die Ablage öffnet sich nicht von selbst, wenn Sie etwas ziehen</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Öffnen Sie sie vor dem Ziehen mit dem Tastenkürzel oder über das Menü.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Eine verborgene Ablage erscheint nicht, wenn der Zeiger an den oberen Rand kommt</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Öffnen Sie sie mit dem Tastenkürzel oder über das Menü.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Ein Klick in ein anderes Programm schließt die Leiste mit allen Elementen nicht</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Drücken Sie Esc, um sie zu schließen.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Tastenkürzel können hier nicht aufgenommen werden</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Wählen Sie sie in den Einstellungen Ihrer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Umschalt wird nicht bemerkt, wenn das Ziehen schon begonnen hat</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Halten Sie die Taste vor dem Ziehen gedrückt, dann bleibt das Element.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Zum Ablegen loslassen</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Zum Ablegen hierher ziehen</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Ablage leeren (1 Element)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Ablage leeren (%Ln Element)</numerusform>
            <numerusform>Ablage leeren (%Ln Elemente)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane – 1 Element</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane – %Ln Element</numerusform>
            <numerusform>Corvane – %Ln Elemente</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Ablage anzeigen</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Alle Elemente anzeigen&#xa0;…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>So funktioniert es&#xa0;…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Corvane beenden</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Versuchen Sie es gleich noch einmal, oder beenden Sie den Prozess %1 und starten Sie Corvane neu.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Versuchen Sie es gleich noch einmal, oder beenden Sie es und starten Sie Corvane neu.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Was von der Stelle kam, an der neue Versionen angekündigt werden, konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Es wurde schon einmal eine neuere Version angekündigt als jetzt. Vielleicht hält jemand Neuigkeiten von Ihnen fern; deshalb wurde nichts übernommen.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Angekündigt ist eine Version, die dieses Programm nicht überprüfen kann, oder gar keine. Es wurde nichts übernommen.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Was angekündigt ist, wurde seit %1 nicht erneuert. Vielleicht hält jemand Neuigkeiten von Ihnen fern, oder Ihre Uhr geht falsch.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Was sich Corvane von früheren Aktualisierungen gemerkt hatte, war beschädigt. Es wurde beiseitegelegt und beginnt mit der nächsten Prüfung neu.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Die Stelle, an der neue Versionen angekündigt werden, war über keine sichere Verbindung erreichbar. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Die neue Version konnte nicht heruntergeladen werden. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>Die heruntergeladene Datei ist nicht so lang wie angekündigt. Sie wurde verworfen.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>Die heruntergeladene Datei ist nicht von den Entwicklern von Corvane signiert. Sie wurde verworfen.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>Auf dem Datenträger ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Die neue Version konnte nicht auf den Datenträger geschrieben werden.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Direkt angefragt, ohne Proxy.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Über den Proxy %1 angefragt.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Es wurde nichts angefragt: Ein Skript wählt Ihren Proxy, und Corvane führt keines aus.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Es wurde nichts angefragt: Ihr Proxy ist von einer Art, die Corvane nicht verwenden kann.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Die Aufzeichnung der Aktualisierungen von Corvane war beschädigt</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane konnte nicht nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane wurde nicht aktualisiert</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Nach Aktualisierungen wird gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane ist aktuell</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>Sie haben Version %1, die neueste.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 ist verfügbar</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>Sie haben %1. Der Download umfasst %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Corvane %1 wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Wird geprüft und installiert&#xa0;…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 ist installiert</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Ab dem nächsten Start von Corvane wird es verwendet. Die vorherige Version bleibt bis dahin daneben erhalten.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 ist heruntergeladen</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Die Datei wurde von den Entwicklern von Corvane signiert und liegt als %1 in Ihrem Download-Ordner.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Aktualisierungen gehen in der Zeit zurück&#xa0;…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Aktualisierungen sind nicht überprüfbar&#xa0;…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Aktualisierungen wurden nicht erneuert&#xa0;…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Aufzeichnung der Aktualisierungen beschädigt&#xa0;…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Aktualisierungen können Ihren Proxy nicht nutzen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 von %2 ausgewählt</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Ziehen Sie etwas an den oberen Bildschirmrand</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Am Ziel ziehen Sie es wieder heraus</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Umschalt hält es in der Ablage</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Ziehen Sie eine Datei, ein Bild oder einen Link, und vom oberen Bildschirmrand gleitet eine Ablage herab. Legen Sie es dort ab. Es bleibt da, während Sie Anwendung, Arbeitsfläche oder Bildschirm wechseln.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Bewegen Sie den Zeiger an den oberen Bildschirmrand, und die Ablage erscheint wieder. Ziehen Sie das Element dorthin, wo Sie gerade arbeiten. Die Leertaste zeigt eine Vorschau, Strg+C kopiert den Pfad.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Normalerweise verlässt ein Element die Ablage, wenn Sie es woanders ablegen. Halten Sie beim Ziehen Umschalt gedrückt, dann bleibt es, und Sie können dasselbe an mehreren Stellen ablegen, ohne es neu einzusammeln.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Per Tastatur: Kürzel der Ablage, %1 fügt ein, %2 geht weiter.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Per Tastatur: %1 öffnet die Ablage, %2 fügt ein, %3 geht weiter.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Version %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Platz für vieles. Hineinziehen, woanders hingehen, herausziehen. Die Ablage leert sich selbst und ist nicht im Weg.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Läuft auf Ihrem Rechner. Nichts, was Sie ablegen, wird zu uns hochgeladen, protokolliert oder irgendwohin gesendet. Corvane nutzt das Netz nur für die Vorschau von Links, die bei der verlinkten Seite selbst anfragt, und, wo es sie gibt, für die Suche nach Aktualisierungen. Beides lässt sich unter Allgemein ausschalten.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Öffnet die Seite des Programms im Webbrowser</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>E-Mail an den Support</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Öffnet eine neue Nachricht im E-Mail-Programm</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Tastenkürzel löschen</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>In Ihren Einstellungsordner kann nicht geschrieben werden. Änderungen gelten, bis Corvane beendet wird, und bleiben nicht erhalten.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Sichtbare Elemente</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>Immer nur eins. Mit den Pfeilen blättern Sie durch die übrigen.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln Vorschaubild gleichzeitig, mit Pfeilen für die übrigen.</numerusform>
            <numerusform>%Ln Vorschaubilder gleichzeitig, mit Pfeilen für die übrigen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane läuft im Hintergrund, mit einem Symbol in der Systemleiste.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Die Ablage öffnen, sobald etwas gezogen wird</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Wenn ausgeschaltet, öffnen Sie sie selbst, etwa mit dem Tastenkürzel.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Vorschau für abgelegte Links anzeigen</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Fragt die verlinkte Seite nach Titel und Bild; sie erfährt so, dass Sie den Link haben. Abgesehen von der Suche nach Aktualisierungen, falls es sie gibt, nutzt Corvane das Netz nur dafür.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Elemente behalten, wenn Corvane beendet wird</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Beim nächsten Start sind sie wieder da. Bis dahin liegen Bilder und Texte in Ihrem persönlichen Ordner.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Ablage anzeigen oder verbergen</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Braucht Super, Alt oder Strg. Ohne Tastenkürzel bleibt das Symbol in der Systemleiste.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Alle Elemente anzeigen oder verbergen</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Anfangs nicht belegt. Die Taste Runter bewirkt auf der Ablage dasselbe.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Sucht sofort nach einer neuen Version</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Die Softwareverwaltung Ihres Systems hält Corvane aktuell.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Dieses Programm weiß nicht, wo es suchen soll.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Auch Beta-Versionen anbieten</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Sie kommen früher und sind von weniger Menschen erprobt.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Bereich der Einstellungen</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Kürzel drücken&#xa0;…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Kürzel aufnehmen</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Diese Kombination schreibt ein Zeichen. Nehmen Sie eine mit Super, Alt oder Strg auf.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Eine andere Anwendung verwendet diese Kombination bereits.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Ihre Arbeitsumgebung hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Belegen Sie in den Einstellungen Ihrer Arbeitsumgebung eine Taste mit diesem Befehl: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Fügen Sie den Einstellungen Ihrer Arbeitsumgebung diese Zeile hinzu: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Ihre Arbeitsumgebung hat es mit %1 belegt.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Was ist neu</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Geht zum vorigen Schritt</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Abbildung: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Schließt diese Einführung</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Geht zum nächsten Schritt</translation>
    </message>
</context>
</TS>

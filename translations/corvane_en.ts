<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Press</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Select or deselect</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>All items on the shelf</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Earlier items</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Later items</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Copy the selected items</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Remove the selected items</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>All items: %L1</translation>
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
        <translation>Picture</translation>
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
        <translation>File</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 of %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>being made ready</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Press</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Copy and take off the shelf</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Earlier items</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Later items</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>All items</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Shelf</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>The shelf is empty</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Removed; 1 item is left</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Removed; %Ln item is left</numerusform>
            <numerusform>Removed; %Ln items are left</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 was added</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 item was added</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln item was added</numerusform>
            <numerusform>%Ln items were added</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Items on the shelf: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>The shelf is empty. %1 puts what is on the clipboard here.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 was removed; the shelf is empty</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 was removed; 1 item is left</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 was removed; %Ln item is left</numerusform>
            <numerusform>%1 was removed; %Ln items are left</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>The shelf is hidden</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>A shelf at the top of the screen for what you drag</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Show or hide the shelf</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Show all items in the bar</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Print the paths and links on the shelf, one a line</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Print them, and remove them from the shelf</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Print a NUL character at the end of each, no new line</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Open the preferences</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>End Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Print this help</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Print the version</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Usage:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>there is no option %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>no option of Corvane takes a value</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 and %2 cannot go together</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null goes with --list and --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>files and links go with no option</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>standard input can be put on the shelf once</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>this is no address: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>there is no file %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>standard input cannot be read, or is larger than 256 MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>standard input is no text in UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>there is no text on standard input</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>the shelf does not take %1 of what was given</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>standard output cannot be written to: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane is running, but does not answer</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>the Corvane that runs says: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>the Corvane that runs does not do this; it may be an older version</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>the display cannot be used: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; see corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>the Corvane that runs is not ready yet; try again in a moment</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>the Corvane that runs has too much to do; try again in a moment</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>what was printed is still on the shelf</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>there is not enough memory</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>the answer of the Corvane that runs cannot be read</translation>
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
        <translation>Converting to PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 character</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln character</numerusform>
            <numerusform>%Ln characters</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Counting characters…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Path copied</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Image copied</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Text copied</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Link copied</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>Data URI copied</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln item copied</numerusform>
            <numerusform>%Ln items copied</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Kept on the shelf</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>It was not taken</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%1 of %2 were not taken</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>The file is no longer there</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>More than %Ln item</numerusform>
            <numerusform>More than %Ln items</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 item</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln item</numerusform>
            <numerusform>%Ln items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>This item is no longer there.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Modified %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln page</numerusform>
            <numerusform>%Ln pages</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>only the beginning is shown</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Open %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Loading…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
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
        <translation>Space</translation>
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
        <translation>Escape</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
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
        <translation>this Wayland session takes Qt&apos;s plug-in for Wayland, which is not installed (the package qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>your display server lacks XInput 2 or XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>your desktop keeps that to itself</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, because %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Drags are noticed only at the top of the screen</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Drag to the middle of the top edge, and the shelf opens.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>The shelf does not open when a drag begins</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Open it with its shortcut or from the menu before you drag.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>A hidden shelf does not come to the pointer at the top edge</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Open it with its shortcut or from the menu.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>A click in another program does not close the bar with all items</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Press Escape to close it.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Shortcuts cannot be recorded here</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Choose them in your desktop&apos;s settings.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Shift is not noticed once a drag has begun</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Hold it before you begin to drag, and the item stays.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Release to hold</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Drop to hold</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Clear Shelf (1 item)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Clear Shelf (%Ln item)</numerusform>
            <numerusform>Clear Shelf (%Ln items)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 item</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln item</numerusform>
            <numerusform>Corvane — %Ln items</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Show Shelf</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>View All Items…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>How It Works…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Check for Updates…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Quit Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane is running already, but does not answer.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Try again in a moment, or end the process %1 and start Corvane anew.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Try again in a moment, or end it and start Corvane anew.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>What came from the place where new versions are announced could not be read.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>The place where new versions are announced could not be reached over a safe connection. Try again later.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>The new version could not be downloaded. Try again later.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>The downloaded file has another length than was announced. It was thrown away.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>The downloaded file was not signed by the makers of Corvane. It was thrown away.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>There is not enough room on the disk.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>The new version could not be written to the disk.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Asked directly, without a proxy.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Asked through the proxy %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Nothing was asked: a script chooses your proxy, and Corvane runs none.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Nothing was asked: your proxy is of a kind that Corvane cannot use.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Corvane&apos;s record of updates was damaged</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane could not check for updates</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane was not updated</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Looking for updates…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane is up to date</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>You have version %1, the newest.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 is available</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>You have %1. The download has %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Downloading Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Checking and installing…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 is installed</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>It is used from the next time that Corvane is started. The one before is kept beside it until then.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 is downloaded</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>It was signed by the makers of Corvane and is in your downloads folder as %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Updates Go Back in Time…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Updates Cannot Be Verified…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Updates Have Not Been Renewed…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Record of Updates Was Damaged…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Updates Cannot Use Your Proxy…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 of %2 selected</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Drag anything to the top of the screen</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Drag it back out when you arrive</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Hold Shift to keep it on the shelf</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Start dragging a file, image or link and a shelf slides down from the top of the screen. Drop it there. It stays put while you switch apps, workspaces, or displays.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Move the pointer to the top of the screen and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or Ctrl+C to copy its path.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Normally an item leaves the shelf when you drop it. Hold Shift while you drag it and it stays, so you can drop the same thing into several places without collecting it again.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</translation>
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
        <translation>Room for many things. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Runs on your computer. Nothing you drop is uploaded to us, logged, or sent anywhere. Corvane uses the network only for link previews, which ask the linked site for its own page, and, where this build has it, for the update check. Turn them off in General.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Opens the product&apos;s page in the web browser</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Email support</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Opens a new message in the mail program</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Clear the shortcut</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Shelf</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Items in view</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>One at a time. Use the arrows to page through the rest.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln thumbnail at once, with arrows for the rest.</numerusform>
            <numerusform>%Ln thumbnails at once, with arrows for the rest.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Behaviour</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Launch at login</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane runs in the background, with an icon in the panel.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Open the shelf when a drag begins</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Turn off to open it yourself, for example with the shortcut.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Show previews for dropped links</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Asks the linked site for its title and image, so the site learns you have the link. Apart from the update check, if there is one, it is the only time Corvane uses the network.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Keep items when Corvane ends</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>They are back at the next start. Until then, pictures and texts are stored in your home folder.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Show or hide the shelf</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Needs Super, Alt or Ctrl. If you clear it, the icon in the panel remains.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Show or hide all items</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Unset by default. The Down key on the shelf does the same thing.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Check Now</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Looks for a new version at once</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Check for updates automatically</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Your system&apos;s software manager keeps Corvane up to date.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>This build does not know where to look.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Offer beta versions too</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>They come earlier, and fewer people have tried them.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Step %1 of %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Pane of the preferences</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Type a shortcut…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Record Shortcut</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>That combination types a character. Record one with Super, Alt or Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Another app already uses that combination.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Your desktop has not answered yet.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Bind a key to this command in your desktop&apos;s settings: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Add this line to your desktop&apos;s settings: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Your desktop has bound it to %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>What is new</translation>
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
        <translation>Back</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Goes to the step before</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Illustration: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Start using it</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Closes this guide</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Goes to the next step</translation>
    </message>
</context>
</TS>

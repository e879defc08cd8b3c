<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>दबाएँ</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>चुनें या चयन हटाएँ</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>सभी चुनें</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>शेल्फ़ की सभी वस्तुएँ</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>पिछली वस्तुएँ</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>अगली वस्तुएँ</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>चुनी हुई वस्तुएँ कॉपी करें</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>चुनी हुई वस्तुएँ हटाएँ</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>सभी वस्तुएँ: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>चित्र</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>पाठ</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>लिंक</translation>
    </message>
    <message>
        <source>File</source>
        <translation>फ़ाइल</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L2 में से %L1</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>तैयार हो रहा है</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>दबाएँ</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>फ़ोकस करें</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>पूर्वावलोकन</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>कॉपी करके शेल्फ़ से हटाएँ</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>पिछली वस्तुएँ</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>अगली वस्तुएँ</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>सभी वस्तुएँ</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>शेल्फ़</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>शेल्फ़ खाली है</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>हटाया गया; 1 वस्तु बची है</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>हटाया गया; %Ln वस्तु बची है</numerusform>
            <numerusform>हटाया गया; %Ln वस्तुएँ बची हैं</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 जोड़ा गया</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 वस्तु जोड़ी गई</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln वस्तु जोड़ी गई</numerusform>
            <numerusform>%Ln वस्तुएँ जोड़ी गईं</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>शेल्फ़ की वस्तुएँ: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>शेल्फ़ खाली है। %1 क्लिपबोर्ड की सामग्री यहाँ रखता है।</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 हटाया गया; शेल्फ़ खाली है</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 हटाया गया; 1 वस्तु बची है</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 हटाया गया; %Ln वस्तु बची है</numerusform>
            <numerusform>%1 हटाया गया; %Ln वस्तुएँ बची हैं</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>शेल्फ़ छिपा है</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>आप जो खींचते हैं उसके लिए स्क्रीन के शीर्ष पर एक शेल्फ़</translation>
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
        <translation>1 बाइट</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln बाइट</numerusform>
            <numerusform>%Ln बाइट</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>शेल्फ़ दिखाएँ या छिपाएँ</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>सभी वस्तुएँ पट्टी में दिखाएँ</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>शेल्फ़ के पथ और लिंक छापें, हर पंक्ति में एक</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>उन्हें छापें और शेल्फ़ से हटाएँ</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>हर एक के बाद नई पंक्ति की जगह NUL वर्ण छापें</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>वरीयताएँ खोलें</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Corvane समाप्त करें</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>यह सहायता छापें</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>संस्करण छापें</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>उपयोग:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>फ़ाइलें और लिंक शेल्फ़ पर रखता है, और - के साथ मानक इनपुट का पाठ।
बिना तर्कों के Corvane शुरू करता है, या चल रहे Corvane का शेल्फ़ दिखाता
या छिपाता है।</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>%1 नाम का कोई विकल्प नहीं है</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>Corvane का कोई विकल्प मान नहीं लेता</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 और %2 साथ नहीं चल सकते</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null को --list और --take के साथ दिया जाता है</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>फ़ाइलें और लिंक किसी विकल्प के साथ नहीं दिए जाते</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>मानक इनपुट शेल्फ़ पर केवल एक बार रखा जा सकता है</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>यह कोई पता नहीं है: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>%1 नाम की कोई फ़ाइल नहीं है</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>मानक इनपुट पढ़ा नहीं जा सकता, या 256&#xa0;MiB से बड़ा है</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>मानक इनपुट UTF-8 पाठ नहीं है</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>मानक इनपुट में कोई पाठ नहीं है</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>शेल्फ़ दी गई वस्तुओं में से %1 स्वीकार नहीं करता</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>मानक आउटपुट में लिखा नहीं जा सकता: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane चल रहा है, पर उत्तर नहीं देता</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>चल रहा Corvane कहता है: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>चल रहा Corvane यह नहीं करता; शायद वह पुराना संस्करण है</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>डिस्प्ले का उपयोग नहीं हो सकता: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; corvane --help देखें</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>चल रहा Corvane अभी तैयार नहीं है; थोड़ी देर में फिर प्रयास करें</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>चल रहे Corvane के पास बहुत काम है; थोड़ी देर में फिर प्रयास करें</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>जो छापा गया वह अब भी शेल्फ़ पर है</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>पर्याप्त मेमोरी नहीं है</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>चल रहे Corvane का उत्तर पढ़ा नहीं जा सकता</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>PNG में बदला जा रहा है…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>चित्र</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 अक्षर</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln अक्षर</numerusform>
            <numerusform>%Ln अक्षर</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>अक्षर गिने जा रहे हैं…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>पथ कॉपी किया गया</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>चित्र कॉपी किया गया</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>पाठ कॉपी किया गया</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>लिंक कॉपी किया गया</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>डेटा URI कॉपी किया गया</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln वस्तु कॉपी की गई</numerusform>
            <numerusform>%Ln वस्तुएँ कॉपी की गईं</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>शेल्फ़ पर बना रहा</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>यह स्वीकार नहीं किया गया</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%2 में से %1 स्वीकार नहीं किए गए</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>फ़ाइल अब वहाँ नहीं है</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>सामान्य</translation>
    </message>
    <message>
        <source>About</source>
        <translation>परिचय</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>%Ln से अधिक वस्तु</numerusform>
            <numerusform>%Ln से अधिक वस्तुएँ</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 वस्तु</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln वस्तु</numerusform>
            <numerusform>%Ln वस्तुएँ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>यह वस्तु अब वहाँ नहीं है।</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>परिवर्तित: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>पृष्ठ</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>चित्र</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 पृष्ठ</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln पृष्ठ</numerusform>
            <numerusform>%Ln पृष्ठ</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>केवल आरंभ दिखाया गया है</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 खोलें</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>लोड हो रहा है…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>पाठ</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>विवरण</translation>
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
        <translation>स्पेस</translation>
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
        <translation>बायाँ</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>दायाँ</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>ऊपर</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>नीचे</translation>
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
        <translation>इस Wayland सत्र को Wayland के लिए Qt का प्लग-इन चाहिए, जो इंस्टॉल नहीं है (पैकेज qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>यह Wayland सत्र किसी प्रोग्राम को स्क्रीन के किनारे शेल्फ़ लटकाने नहीं देता, और कोई X11 डिस्प्ले भी नहीं है (DISPLAY सेट नहीं है)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>जहाँ WAYLAND_DISPLAY बताता है वहाँ कोई Wayland सत्र नहीं है, और कोई X11 डिस्प्ले भी नहीं है (DISPLAY सेट नहीं है)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>शेल्फ़ लटकाने के लिए कोई डिस्प्ले नहीं है (न WAYLAND_DISPLAY सेट है, न DISPLAY)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>इस Wayland सत्र में WAYLAND_DISPLAY सेट नहीं है, इसलिए शेल्फ़ सत्र का X11 डिस्प्ले इस्तेमाल करता है, जहाँ खींची गई कुछ चीज़ें शायद उस तक न पहुँचें</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>जहाँ WAYLAND_DISPLAY बताता है वहाँ कोई कंपोज़िटर जवाब नहीं देता, इसलिए शेल्फ़ इस सत्र का X11 डिस्प्ले इस्तेमाल करता है, जहाँ खींची गई कुछ चीज़ें शायद उस तक न पहुँचें</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>आपके डिस्प्ले सर्वर में XInput 2 या XFixes नहीं है</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>आपका डेस्कटॉप यह नहीं बताता</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, क्योंकि %2। %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>खींचना केवल स्क्रीन के शीर्ष पर पहचाना जाता है</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>ऊपरी किनारे के बीच तक खींचें, और शेल्फ़ खुल जाएगा।</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>खींचना शुरू होने पर शेल्फ़ नहीं खुलता</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>खींचने से पहले इसे शॉर्टकट से या मेनू से खोलें।</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>पॉइंटर के ऊपरी किनारे पर आने पर छिपा शेल्फ़ नहीं दिखता</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>इसे शॉर्टकट से या मेनू से खोलें।</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>किसी दूसरे प्रोग्राम में क्लिक करने से सभी वस्तुओं की पट्टी बंद नहीं होती</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>इसे बंद करने के लिए Esc दबाएँ।</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>यहाँ शॉर्टकट दर्ज नहीं किए जा सकते</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>इन्हें अपने डेस्कटॉप की सेटिंग में चुनें।</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>खींचना शुरू होने के बाद Shift पहचाना नहीं जाता</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>खींचना शुरू करने से पहले इसे दबाए रखें, और वस्तु बनी रहेगी।</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>रखने के लिए छोड़ें</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>रखने के लिए यहाँ खींचें</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>शेल्फ़ खाली करें (1 वस्तु)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>शेल्फ़ खाली करें (%Ln वस्तु)</numerusform>
            <numerusform>शेल्फ़ खाली करें (%Ln वस्तुएँ)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 वस्तु</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln वस्तु</numerusform>
            <numerusform>Corvane — %Ln वस्तुएँ</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>शेल्फ़ दिखाएँ</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>सभी वस्तुएँ देखें…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>वरीयताएँ…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>यह कैसे काम करता है…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>अपडेट जाँचें…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Corvane से बाहर निकलें</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane पहले से चल रहा है, पर जवाब नहीं दे रहा।</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>थोड़ी देर में फिर प्रयास करें, या प्रक्रिया %1 समाप्त करके Corvane फिर शुरू करें।</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>थोड़ी देर में फिर प्रयास करें, या उसे समाप्त करके Corvane फिर शुरू करें।</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>जहाँ नए संस्करण घोषित होते हैं, वहाँ से जो आया वह पढ़ा नहीं जा सका।</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>पहले इससे नया संस्करण घोषित हुआ था। हो सकता है कोई आपसे समाचार छिपा रहा हो, इसलिए कुछ नहीं लिया गया।</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>जो घोषित है उसे यह प्रोग्राम सत्यापित नहीं कर सकता, या कुछ घोषित ही नहीं है। कुछ नहीं लिया गया।</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>जो घोषित है उसका %1 के बाद से नवीनीकरण नहीं हुआ। हो सकता है कोई आपसे समाचार छिपा रहा हो, या आपकी घड़ी ग़लत हो।</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>पिछले अपडेटों के बारे में Corvane को जो याद था वह क्षतिग्रस्त था। उसे अलग रखा गया और अगली जाँच से नया आरंभ होगा।</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>जहाँ नए संस्करण घोषित होते हैं, वहाँ सुरक्षित कनेक्शन से नहीं पहुँचा जा सका। बाद में फिर प्रयास करें।</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>नया संस्करण डाउनलोड नहीं हो सका। बाद में फिर प्रयास करें।</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>डाउनलोड की गई फ़ाइल की लंबाई घोषित लंबाई से भिन्न है। उसे हटा दिया गया।</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>डाउनलोड की गई फ़ाइल पर Corvane के निर्माताओं के हस्ताक्षर नहीं हैं। उसे हटा दिया गया।</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>डिस्क पर पर्याप्त स्थान नहीं है।</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>नया संस्करण डिस्क पर लिखा नहीं जा सका।</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>बिना प्रॉक्सी के सीधे पूछा गया।</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>प्रॉक्सी %1 से होकर पूछा गया।</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>कुछ नहीं पूछा गया: आपकी प्रॉक्सी एक स्क्रिप्ट चुनती है, और Corvane कोई स्क्रिप्ट नहीं चलाता।</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>कुछ नहीं पूछा गया: आपकी प्रॉक्सी ऐसी है जिसका उपयोग Corvane नहीं कर सकता।</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Corvane का अपडेट रिकॉर्ड क्षतिग्रस्त था</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane अपडेट नहीं जाँच सका</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane अपडेट नहीं हुआ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>अपडेट खोजे जा रहे हैं…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane अद्यतन है</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>आपके पास संस्करण %1 है, जो सबसे नया है।</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 उपलब्ध है</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>आपके पास %1 है। डाउनलोड का आकार %2 है।</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>इंस्टॉल करें</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>डाउनलोड करें</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>बाद में</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Corvane %1 डाउनलोड हो रहा है…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 में से %1</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>जाँचा और इंस्टॉल किया जा रहा है…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 इंस्टॉल हो गया</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Corvane के अगली बार शुरू होने पर इसका उपयोग होगा। तब तक पिछला संस्करण इसके पास रखा रहेगा।</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 डाउनलोड हो गया</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>इस पर Corvane के निर्माताओं के हस्ताक्षर हैं और यह आपके डाउनलोड फ़ोल्डर में %1 नाम से है।</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>दिखाएँ</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>अपडेट समय में पीछे जा रहे हैं…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>अपडेट सत्यापित नहीं हो सकते…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>अपडेट नवीनीकृत नहीं हुए…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>अपडेट रिकॉर्ड क्षतिग्रस्त था…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>अपडेट आपकी प्रॉक्सी का उपयोग नहीं कर सकते…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%2 में से %1 चयनित</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>कुछ भी स्क्रीन के शीर्ष तक खींचें</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>पहुँचने पर उसे वापस बाहर खींचें</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>शेल्फ़ पर रखने के लिए Shift दबाए रखें</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>कोई फ़ाइल, चित्र या लिंक खींचना शुरू करें, और स्क्रीन के शीर्ष से एक शेल्फ़ नीचे आता है। उसे वहाँ छोड़ें। ऐप, कार्यस्थान या डिस्प्ले बदलने पर भी वह वहीं रहता है।</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>पॉइंटर को स्क्रीन के शीर्ष पर ले जाएँ और शेल्फ़ फिर दिखेगा। वस्तु को वहाँ खींचें जहाँ आप काम कर रहे हैं। पूर्वावलोकन के लिए स्पेस, या पथ कॉपी करने के लिए Ctrl+C दबाएँ।</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>सामान्यतः वस्तु छोड़ने पर शेल्फ़ से चली जाती है। खींचते समय Shift दबाए रखें तो वह बनी रहती है, ताकि आप उसे फिर से जुटाए बिना कई स्थानों पर छोड़ सकें।</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>कीबोर्ड से: शेल्फ़ का शॉर्टकट दबाएँ, फिर उस पर चिपकाने के लिए %1 और उसमें आगे बढ़ने के लिए %2।</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>कीबोर्ड से: %1 दबाएँ, फिर शेल्फ़ पर चिपकाने के लिए %2 और उसमें आगे बढ़ने के लिए %3।</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>संस्करण %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>कई चीज़ों के लिए जगह। अंदर खींचें, कहीं और जाएँ, बाहर खींचें। शेल्फ़ स्वयं खाली होकर रास्ते से हट जाता है।</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>आपके कंप्यूटर पर चलता है। आप जो भी छोड़ते हैं वह न हमें भेजा जाता है, न दर्ज होता है, न कहीं और भेजा जाता है। Corvane नेटवर्क का उपयोग केवल लिंक पूर्वावलोकन के लिए करता है, जो उस साइट से उसका पृष्ठ माँगता है, और जहाँ हो वहाँ अपडेट जाँच के लिए। दोनों को “सामान्य” में बंद किया जा सकता है।</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>वेबसाइट</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>उत्पाद का पृष्ठ वेब ब्राउज़र में खोलता है</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>सहायता के लिए ईमेल</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>मेल प्रोग्राम में नया संदेश खोलता है</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>शॉर्टकट मिटाएँ</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>आपके सेटिंग फ़ोल्डर में लिखा नहीं जा सकता। परिवर्तन Corvane के बंद होने तक काम करते हैं, और रखे नहीं जाते।</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>शेल्फ़</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>दिखने वाली वस्तुएँ</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>एक बार में एक। बाकी के लिए तीरों का उपयोग करें।</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>एक साथ %Ln लघुचित्र, बाकी के लिए तीर।</numerusform>
            <numerusform>एक साथ %Ln लघुचित्र, बाकी के लिए तीर।</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>व्यवहार</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>लॉगिन पर शुरू करें</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane पृष्ठभूमि में चलता है, और पैनल में उसका आइकन होता है।</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>खींचना शुरू होने पर शेल्फ़ खोलें</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>इसे स्वयं खोलने के लिए बंद करें, जैसे शॉर्टकट से।</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>छोड़े गए लिंक के पूर्वावलोकन दिखाएँ</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>उस साइट से उसका शीर्षक और चित्र माँगता है, जिससे साइट को पता चलता है कि लिंक आपके पास है। यदि अपडेट जाँच हो तो उसे छोड़कर, Corvane केवल यहीं नेटवर्क का उपयोग करता है।</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Corvane के बंद होने पर वस्तुएँ बनाए रखें</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>अगली बार शुरू होने पर वे वापस आ जाती हैं। तब तक चित्र और पाठ आपके होम फ़ोल्डर में रखे जाते हैं।</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>शॉर्टकट</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>शेल्फ़ दिखाएँ या छिपाएँ</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Super, Alt या Ctrl चाहिए। इसे मिटाने पर भी पैनल का आइकन रहता है।</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>सभी वस्तुएँ दिखाएँ या छिपाएँ</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>आरंभ में निर्धारित नहीं। शेल्फ़ पर “नीचे” कुंजी यही करती है।</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>अभी जाँचें</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>तुरंत नया संस्करण खोजता है</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>अपडेट</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>अपडेट अपने-आप जाँचें</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>आपके सिस्टम का सॉफ़्टवेयर प्रबंधक Corvane को अद्यतन रखता है।</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>यह प्रोग्राम नहीं जानता कि कहाँ देखना है।</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>बीटा संस्करण भी सुझाएँ</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>वे पहले आते हैं, और उन्हें कम लोगों ने आज़माया है।</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>%2 में से चरण %1</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>वरीयताओं का भाग</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>शॉर्टकट दबाएँ…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>शॉर्टकट दर्ज करें</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>यह संयोजन एक अक्षर लिखता है। Super, Alt या Ctrl वाला दर्ज करें।</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>कोई दूसरा ऐप पहले से इस संयोजन का उपयोग करता है।</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>आपके डेस्कटॉप ने अभी जवाब नहीं दिया।</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>अपने डेस्कटॉप की सेटिंग में इस कमांड के लिए कुंजी निर्धारित करें: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>यह पंक्ति अपने डेस्कटॉप की सेटिंग में जोड़ें: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>आपके डेस्कटॉप ने इसे %1 पर निर्धारित किया है।</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>नया क्या है</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>डाउनलोड</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>पीछे</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>पिछले चरण पर जाता है</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>चित्रण: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>उपयोग शुरू करें</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>आगे</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>यह मार्गदर्शिका बंद करता है</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>अगले चरण पर जाता है</translation>
    </message>
</context>
</TS>

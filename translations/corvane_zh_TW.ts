<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>選取或取消選取</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>置物架上的全部項目</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>前面的項目</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>後面的項目</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>複製選取的項目</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>移除選取的項目</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>全部項目：%L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>第 %L1 個，共 %L2 個</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>正在準備</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>聚焦</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>複製並從置物架取走</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>前面的項目</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>後面的項目</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>全部項目</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>置物架</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>置物架是空的</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>已移除；還剩 1 個項目</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>已移除；還剩 %Ln 個項目</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>已加入 %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>已加入 1 個項目</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>已加入 %Ln 個項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>置物架上的項目：%L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>置物架是空的。按 %1 把剪貼簿的內容放到這裡。</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>已移除 %1；置物架是空的</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>已移除 %1；還剩 1 個項目</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>已移除 %1；還剩 %Ln 個項目</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>置物架已隱藏</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>螢幕頂端的置物架，存放您拖曳的內容</translation>
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
        <translation>1 位元組</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln 位元組</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>顯示或隱藏置物架</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>在項目列中顯示全部項目</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>輸出置物架上的路徑和連結，每行一個</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>輸出它們並從置物架移除</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>在每項之後輸出 NUL 字元，不換行</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>開啟偏好設定</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>結束 Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>輸出此說明</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>輸出版本</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>用法：</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>將檔案和連結放到置物架上，使用 - 時放入標準輸入的文字。
沒有參數時啟動 Corvane，或者顯示或隱藏正在執行的
那個置物架。</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>沒有選項 %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>Corvane 的選項都不帶值</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 和 %2 不能一起使用</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null 需與 --list 或 --take 一起使用</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>檔案和連結不能與選項一起使用</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>標準輸入只能放到置物架上一次</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>這不是網址：%1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>沒有檔案 %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>標準輸入無法讀取，或者超過 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>標準輸入不是 UTF-8 文字</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>標準輸入中沒有文字</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>給出的項目中有 %1 個置物架不接收</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>無法寫入標準輸出：%1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane 正在執行，但沒有回應</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>正在執行的 Corvane 回報：%1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>正在執行的 Corvane 不支援此操作，可能是較舊的版本</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>無法使用顯示器：%1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1；請參閱 corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>正在執行的 Corvane 尚未就緒，請稍後再試</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>正在執行的 Corvane 過於忙碌，請稍後再試</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>已輸出的項目仍在置物架上</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>無法讀取正在執行的 Corvane 的回應</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>正在轉換為 PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>影像</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 個字元</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln 個字元</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>正在計算字元數…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>已複製路徑</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>已複製影像</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>已複製文字</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>已複製連結</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>已複製資料 URI</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>已複製 %Ln 個項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>留在置物架上</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>未被接收</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%2 個中有 %1 個未被接收</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>檔案已不存在</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>超過 %Ln 個項目</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 個項目</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln 個項目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>此項目已不存在。</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>修改於 %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 頁</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln 頁</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>僅顯示開頭</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>開啟 %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>正在載入…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資訊</translation>
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
        <translation>空白鍵</translation>
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
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
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
        <translation>此 Wayland 工作階段需要 Qt 的 Wayland 外掛程式，但尚未安裝（套件 qt6-wayland）</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>此 Wayland 工作階段不允許程式把置物架掛在螢幕邊緣，也沒有 X11 顯示器（未設定 DISPLAY）</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>WAYLAND_DISPLAY 所指之處沒有 Wayland 工作階段，也沒有 X11 顯示器（未設定 DISPLAY）</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>沒有可以掛置物架的顯示器（WAYLAND_DISPLAY 和 DISPLAY 均未設定）</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>此 Wayland 工作階段未設定 WAYLAND_DISPLAY，因此置物架使用該工作階段的 X11 顯示器，某些拖放可能無法到達置物架</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY 所指之處沒有合成器回應，因此置物架使用此工作階段的 X11 顯示器，某些拖放可能無法到達置物架</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>您的顯示伺服器缺少 XInput 2 或 XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>您的桌面環境不提供這些資訊</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>因為%2，%1。%3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>只有在螢幕頂端才能偵測到拖曳</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>拖曳到頂端邊緣的中間，置物架就會開啟。</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>開始拖曳時置物架不會開啟</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>請在拖曳之前用快捷鍵或從選單開啟它。</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>指標移到頂端邊緣時，隱藏的置物架不會出現</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>請用快捷鍵或從選單開啟它。</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>在其他程式中點擊不會關閉全部項目列</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>按 Esc 關閉它。</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>無法在這裡錄製快捷鍵</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>請在桌面環境的設定中選擇。</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>拖曳開始之後無法偵測到 Shift</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>請在開始拖曳之前按住它，項目就會留下。</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>放開即可存放</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>拖曳到此處存放</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>清空置物架（1 個項目）</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>清空置物架（%Ln 個項目）</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 個項目</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln 個項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>顯示置物架</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>檢視全部項目…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>偏好設定…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>使用方法…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>檢查更新…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>結束 Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane 已在執行，但沒有回應。</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>請稍後再試，或結束行程 %1 並重新啟動 Corvane。</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>請稍後再試，或將它結束並重新啟動 Corvane。</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>無法讀取來自新版本公布處的內容。</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>以前公布過比現在更新的版本。可能有人對您隱瞞消息，因此沒有採用任何內容。</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>公布的是此程式無法驗證的版本，或者沒有版本。沒有採用任何內容。</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>公布的內容自 %1 起沒有更新。可能有人對您隱瞞消息，或者您的時鐘不準。</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Corvane 對以往更新的記錄已損壞。記錄已移到一旁，將在下次檢查時重新開始。</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>無法透過安全連線連到新版本公布處。請稍後再試。</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>無法下載新版本。請稍後再試。</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>下載的檔案長度與公布的不同，已將它丟棄。</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>下載的檔案不是由 Corvane 的開發者簽署的，已將它丟棄。</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>磁碟空間不足。</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>無法將新版本寫入磁碟。</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>未使用代理伺服器，直接查詢。</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>透過代理伺服器 %1 查詢。</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>沒有查詢：您的代理伺服器由指令稿選擇，而 Corvane 不執行指令稿。</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>沒有查詢：Corvane 無法使用您這種代理伺服器。</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Corvane 的更新記錄已損壞</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane 無法檢查更新</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane 未更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>正在尋找更新…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane 已是最新版本</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>您使用的版本 %1 是最新的。</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 可供使用</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>您使用的是 %1。下載大小為 %2。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍後</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>正在下載 Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>正在檢查並安裝…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 已安裝</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>下次啟動 Corvane 時開始使用。在此之前，舊版本會保留在旁邊。</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 已下載</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>它由 Corvane 的開發者簽署，以 %1 的名稱儲存在您的下載資料夾中。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>更新倒退了…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>更新無法驗證…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>更新資訊未續期…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>更新記錄已損壞…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>更新無法使用您的代理伺服器…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>已選取 %1 個，共 %2 個</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>將任何東西拖曳到螢幕頂端</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>到達後再拖出來</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>按住 Shift 讓它留在置物架上</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>開始拖曳檔案、影像或連結，置物架就會從螢幕頂端滑下。放在那裡即可。切換應用程式、工作區或螢幕時，它都原地不動。</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>將指標移到螢幕頂端，置物架會再次出現。把項目拖曳到您正在工作的地方。按空白鍵預覽，按 Ctrl+C 複製其路徑。</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>通常項目在放下後會離開置物架。拖曳時按住 Shift，它就會留下，這樣無須再次收集就能把同一項目放到多個地方。</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>使用鍵盤：按置物架的快捷鍵，再按 %1 貼上，按 %2 逐項移動。</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>使用鍵盤：按 %1，再按 %2 貼到置物架上，按 %3 逐項移動。</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>版本 %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>可放置多個項目。拖進來，換個地方，拖出去。置物架會自行清空，不礙事。</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>在您的電腦上執行。您放下的任何東西都不會上傳給我們、被記錄或傳送到任何地方。Corvane 只在連結預覽（向連結的網站要求其頁面）以及檢查更新（如果有）時使用網路。兩者都可以在「一般」中關閉。</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>網站</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>在網頁瀏覽器中開啟產品頁面</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>聯絡支援</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>在郵件程式中開啟新郵件</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>清除快捷鍵</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>無法寫入您的設定資料夾。變更在 Corvane 結束之前有效，不會儲存。</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>置物架</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>可見項目數</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>一次一個。用箭頭翻看其餘的。</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>同時顯示 %Ln 個縮圖，用箭頭翻看其餘的。</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>行為</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登入時啟動</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane 在背景執行，面板中有圖示。</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>開始拖曳時開啟置物架</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>關閉後由您自行開啟，例如用快捷鍵。</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>顯示所放連結的預覽</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>向連結的網站要求標題和影像，因此網站會知道您有該連結。除檢查更新（如果有）外，Corvane 只在此時使用網路。</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Corvane 結束時保留項目</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>下次啟動時會還原這些項目。在此之前，影像和文字儲存在您的家目錄中。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷鍵</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>顯示或隱藏置物架</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>需要 Super、Alt 或 Ctrl。清除後仍可使用面板中的圖示。</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>顯示或隱藏全部項目</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>預設未設定。在置物架上按「下」鍵效果相同。</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即檢查</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>立即尋找新版本</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>自動檢查更新</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>您系統的軟體管理員會使 Corvane 保持最新。</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>此程式不知道要到哪裡尋找。</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>也提供測試版本</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>它們來得更早，試用過的人也更少。</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>偏好設定的頁面</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>請按快捷鍵…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>錄製快捷鍵</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>該組合會輸入字元。請錄製包含 Super、Alt 或 Ctrl 的組合。</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>其他應用程式已在使用該組合。</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>您的桌面環境尚未回應。</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>請在桌面環境的設定中為此指令指定按鍵：%1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>請將此行加入桌面環境的設定：%1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>您的桌面環境已將它設為 %1。</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>新增內容</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>前往上一步</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>插圖：%1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>開始使用</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>關閉此指南</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>前往下一步</translation>
    </message>
</context>
</TS>

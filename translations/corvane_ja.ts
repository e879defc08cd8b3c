<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>選択または選択解除</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>シェルフのすべての項目</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>前の項目</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>次の項目</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>選択した項目をコピー</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>選択した項目を削除</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>すべての項目: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L2 個中 %L1 番目</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>準備中</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>フォーカス</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>コピーしてシェルフから取り除く</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>前の項目</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>次の項目</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>すべての項目</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>シェルフ</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>シェルフは空です</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>削除しました。残り 1 個です</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>削除しました。残り %Ln 個です</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 を追加しました</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 個の項目を追加しました</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln 個の項目を追加しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>シェルフの項目: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>シェルフは空です。%1 でクリップボードの内容をここに置きます。</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 を削除しました。シェルフは空です</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 を削除しました。残り 1 個です</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 を削除しました。残り %Ln 個です</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>シェルフを隠しました</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>ドラッグしたものを置く、画面上端のシェルフ</translation>
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
        <translation>1 バイト</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln バイト</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>シェルフの表示/非表示</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>すべての項目をバーに表示する</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>シェルフのパスとリンクを 1 行に 1 つずつ出力する</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>出力してシェルフから取り除く</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>改行の代わりにそれぞれの後に NUL 文字を出力する</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Corvane を終了する</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>このヘルプを出力する</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>バージョンを出力する</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>使い方:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>ファイルとリンクを、- では標準入力のテキストをシェルフに置きます。
引数がなければ Corvane を起動するか、起動しているもののシェルフを
表示または非表示にします。</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>%1 というオプションはありません</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>Corvane のオプションは値を取りません</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 と %2 は一緒に指定できません</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null は --list または --take と一緒に指定します</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>ファイルとリンクはオプションと一緒に指定できません</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>標準入力は 1 回だけシェルフに置けます</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>アドレスではありません: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>%1 というファイルはありません</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>標準入力を読み取れないか、256&#xa0;MiB を超えています</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>標準入力が UTF-8 のテキストではありません</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>標準入力にテキストがありません</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>指定されたもののうち %1 個をシェルフが受け取りません</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>標準出力に書き込めません: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane は動作中ですが、応答しません</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>動作中の Corvane からの報告: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>動作中の Corvane はこれに対応していません。古いバージョンかもしれません</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>ディスプレイを使用できません: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1。corvane --help を参照してください</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>動作中の Corvane はまだ準備ができていません。しばらくしてからやり直してください</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>動作中の Corvane は処理が混み合っています。しばらくしてからやり直してください</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>出力したものはシェルフに残っています</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>動作中の Corvane の応答を読み取れません</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>PNG に変換しています…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 文字</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>文字数を数えています…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>パスをコピーしました</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>画像をコピーしました</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>テキストをコピーしました</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>リンクをコピーしました</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>データ URI をコピーしました</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln 個の項目をコピーしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>シェルフに残しました</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>受け取られませんでした</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%2 個のうち %1 個が受け取られませんでした</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>ファイルはもうありません</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>%Ln 個を超える項目</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 個の項目</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln 個の項目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>この項目はもうありません。</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>更新日時: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln ページ</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>先頭だけを表示しています</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
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
        <translation>Esc</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>←</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>→</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>↓</translation>
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
        <translation>この Wayland セッションには Qt の Wayland プラグインが必要ですが、インストールされていません (パッケージ qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>この Wayland セッションではプログラムが画面の端にシェルフを表示できず、X11 ディスプレイもありません (DISPLAY が設定されていません)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>WAYLAND_DISPLAY が示す場所に Wayland セッションがなく、X11 ディスプレイもありません (DISPLAY が設定されていません)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>シェルフを表示するディスプレイがありません (WAYLAND_DISPLAY も DISPLAY も設定されていません)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>この Wayland セッションでは WAYLAND_DISPLAY が設定されていないため、シェルフはセッションの X11 ディスプレイを使います。そこでは一部のドラッグがシェルフに届かないことがあります</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY が示す場所で応答するコンポジターがないため、シェルフはこのセッションの X11 ディスプレイを使います。そこでは一部のドラッグがシェルフに届かないことがあります</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>ディスプレイサーバーに XInput 2 または XFixes がない</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>デスクトップ環境がそれを知らせない</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%2ため、%1。%3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>ドラッグは画面の上端でしか検知されません</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>上端の中央へドラッグすると、シェルフが開きます。</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>ドラッグを始めてもシェルフは開きません</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>ドラッグする前に、ショートカットまたはメニューから開いてください。</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>ポインターを上端に動かしても、隠れたシェルフは現れません</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>ショートカットまたはメニューから開いてください。</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>ほかのプログラムをクリックしても、全項目のバーは閉じません</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>閉じるには Esc を押してください。</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>ここではショートカットを登録できません</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>デスクトップの設定で選んでください。</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>ドラッグを始めた後では Shift を検知できません</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>ドラッグを始める前に押しておくと、項目は残ります。</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>放すと預かります</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>ここにドロップ</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>シェルフを空にする (1 個の項目)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>シェルフを空にする (%Ln 個の項目)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 個の項目</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln 個の項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>シェルフを表示</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>すべての項目を表示…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>使い方…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Corvane を終了</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane はすでに起動していますが、応答しません。</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>しばらくしてからやり直すか、プロセス %1 を終了して Corvane を起動し直してください。</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>しばらくしてからやり直すか、終了させて Corvane を起動し直してください。</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>新しいバージョンを知らせる場所から届いたものを読めませんでした。</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>以前に知らされたバージョンのほうが新しいものでした。だれかがお知らせを遮っているおそれがあるため、何も取り込みませんでした。</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>知らされたのはこのビルドで検証できないリリースか、何もないかのどちらかです。何も取り込みませんでした。</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>お知らせは %1 以降更新されていません。だれかがお知らせを遮っているか、時計が正しくないおそれがあります。</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Corvane が覚えていた以前のアップデートの記録が壊れていました。記録を別に移し、次の確認から新しく始めます。</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>新しいバージョンを知らせる場所に安全な接続でつながりませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>新しいバージョンをダウンロードできませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>ダウンロードしたファイルの長さが知らされたものと違うため、破棄しました。</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>ダウンロードしたファイルは Corvane の作者が署名したものではないため、破棄しました。</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>ディスクの空き容量が足りません。</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>新しいバージョンをディスクに書き込めませんでした。</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>プロキシを使わず直接問い合わせました。</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>プロキシ %1 を通して問い合わせました。</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>問い合わせていません: プロキシはスクリプトで選ばれますが、Corvane はスクリプトを実行しません。</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>問い合わせていません: Corvane では使えない種類のプロキシです。</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Corvane のアップデートの記録が壊れていました</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane はアップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane はアップデートされませんでした</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>アップデートを探しています…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane は最新です</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>お使いのバージョン %1 が最新です。</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 を利用できます</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>お使いのバージョンは %1 です。ダウンロードのサイズは %2 です。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Corvane %1 をダウンロードしています…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>検査してインストールしています…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 をインストールしました</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>次に Corvane を起動したときから使われます。それまでは、以前のバージョンが隣に残ります。</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 をダウンロードしました</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Corvane の作者が署名したファイルです。ダウンロードフォルダーに %1 という名前で保存しました。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>アップデートが過去に戻っています…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>アップデートを検証できません…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>アップデートが更新されていません…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>アップデートの記録が壊れていました…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>アップデートにプロキシを使えません…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%2 個中 %1 個を選択</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>何でも画面の上端へドラッグ</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>目的の場所で取り出す</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Shift を押すとシェルフに残る</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>ファイル、画像、リンクをドラッグし始めると、画面の上端からシェルフが下りてきます。そこにドロップしてください。アプリ、ワークスペース、ディスプレイを切り替えても、そのまま残ります。</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>ポインターを画面の上端へ動かすと、シェルフがまた現れます。項目を作業中の場所へドラッグしてください。Space キーでプレビュー、Ctrl+C でパスをコピーできます。</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>通常、ドロップした項目はシェルフからなくなります。Shift キーを押しながらドラッグすると残るので、集め直さなくても同じものをいくつもの場所にドロップできます。</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>キーボードでは、シェルフのショートカットを押し、%1 で貼り付け、%2 で移動します。</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>キーボードでは、%1 を押し、%2 でシェルフに貼り付け、%3 で移動します。</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>バージョン %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>いくつでも置けます。入れて、移動して、取り出すだけ。シェルフは自然に空になり、邪魔になりません。</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>お使いのコンピューターの中だけで動きます。ドロップしたものが作者に送られたり、記録されたり、どこかへ送信されたりすることはありません。Corvane がネットワークを使うのは、リンク先のサイトにそのページを尋ねるリンクのプレビューと、備わっている場合のアップデートの確認だけです。どちらも「全般」でオフにできます。</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>製品のページをウェブブラウザーで開きます</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>サポートにメール</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>メールプログラムで新しいメッセージを開きます</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>ショートカットを消去</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>設定フォルダーに書き込めません。変更は Corvane を終了するまで有効ですが、保存されません。</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>シェルフ</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>表示する項目数</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>一度に 1 個。残りは矢印でめくります。</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>一度に %Ln 個のサムネイル。残りは矢印でめくります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane はバックグラウンドで動き、パネルにアイコンを表示します。</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>ドラッグを始めたらシェルフを開く</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>オフにすると、ショートカットなどで自分で開きます。</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>ドロップしたリンクのプレビューを表示</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>リンク先のサイトにタイトルと画像を尋ねるため、リンクを持っていることがサイトに伝わります。備わっている場合のアップデートの確認を除き、Corvane がネットワークを使うのはこのときだけです。</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Corvane の終了時に項目を残す</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>次に起動したとき、シェルフに戻ります。それまで、画像とテキストはホームフォルダーに保存されます。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>シェルフの表示/非表示</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Super、Alt、Ctrl のいずれかが必要です。消去しても、パネルのアイコンから開けます。</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>すべての項目の表示/非表示</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>初期状態では未設定です。シェルフで ↓ キーを押しても同じです。</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>新しいバージョンをすぐに探します</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>システムのソフトウェア管理が Corvane を最新に保ちます。</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>このビルドには確認先がありません。</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>ベータ版も知らせる</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>早く届きますが、試した人は多くありません。</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>ステップ %1 / %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>設定のページ</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>キーを押してください…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>ショートカットを登録</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>その組み合わせは文字を入力します。Super、Alt、Ctrl のいずれかを含むものを登録してください。</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>その組み合わせは別のアプリがすでに使っています。</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>デスクトップがまだ応答していません。</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>デスクトップの設定で、次のコマンドにキーを割り当ててください: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>デスクトップの設定に次の行を追加してください: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>デスクトップが %1 を割り当てました。</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>前のステップに戻ります</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>図: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>使い始める</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>このガイドを閉じます</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>次のステップに進みます</translation>
    </message>
</context>
</TS>

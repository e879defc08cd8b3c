<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Pressionar</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Marcar ou desmarcar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Todos os itens da prateleira</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Itens anteriores</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Itens posteriores</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Copiar os itens selecionados</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Remover os itens selecionados</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Todos os itens: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 de %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>em preparação</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Pressionar</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Copiar e tirar da prateleira</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Itens anteriores</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Itens posteriores</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Todos os itens</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Prateleira</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>A prateleira está vazia</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Removido; resta 1 item</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Removido; resta %Ln item</numerusform>
            <numerusform>Removido; restam %Ln itens</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 foi adicionado</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 item foi adicionado</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln item foi adicionado</numerusform>
            <numerusform>%Ln itens foram adicionados</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Itens da prateleira: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>A prateleira está vazia. %1 coloca aqui o conteúdo da área de transferência.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 foi removido; a prateleira está vazia</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 foi removido; resta 1 item</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 foi removido; resta %Ln item</numerusform>
            <numerusform>%1 foi removido; restam %Ln itens</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>A prateleira está oculta</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Uma prateleira no topo da tela para o que você arrasta</translation>
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
        <translation>Mostrar ou ocultar a prateleira</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Mostrar todos os itens na barra</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Imprimir os caminhos e links da prateleira, um por linha</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Imprimi-los e removê-los da prateleira</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Imprimir um caractere NUL após cada um, sem nova linha</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Abrir as preferências</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Encerrar o Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Imprimir esta ajuda</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Imprimir a versão</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Põe arquivos e links na prateleira, e com - um texto da entrada padrão.
Sem argumentos inicia o Corvane, ou mostra ou oculta a prateleira do que
está em execução.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>não existe a opção %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>nenhuma opção do Corvane recebe um valor</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 e %2 não podem ser usadas juntas</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null é usada com --list e --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>arquivos e links não são usados com nenhuma opção</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>a entrada padrão só pode ser posta uma vez na prateleira</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>isto não é um endereço: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>não existe o arquivo %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>a entrada padrão não pode ser lida ou é maior que 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>a entrada padrão não é um texto em UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>não há texto na entrada padrão</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>a prateleira não aceita %1 dos itens dados</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>não é possível escrever na saída padrão: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>o Corvane está em execução, mas não responde</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>o Corvane em execução diz: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>o Corvane em execução não faz isso; talvez seja uma versão mais antiga</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>a tela não pode ser usada: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; veja corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>o Corvane em execução ainda não está pronto; tente de novo em instantes</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>o Corvane em execução está sobrecarregado; tente de novo em instantes</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>o que foi exibido continua na prateleira</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>não há memória suficiente</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>não é possível ler a resposta do Corvane em execução</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Convertendo para PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 caractere</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln caractere</numerusform>
            <numerusform>%Ln caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Contando caracteres…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Caminho copiado</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Imagem copiada</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texto copiado</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Link copiado</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>URI de dados copiado</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln item copiado</numerusform>
            <numerusform>%Ln itens copiados</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Mantido na prateleira</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Não foi aceito</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>Não aceitos: %1 de %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>O arquivo não está mais lá</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Mais de %Ln item</numerusform>
            <numerusform>Mais de %Ln itens</numerusform>
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
            <numerusform>%Ln itens</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Este item não está mais lá.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Modificado: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln página</numerusform>
            <numerusform>%Ln páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>somente o início é mostrado</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Carregando…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
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
        <translation>Enter</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter (teclado numérico)</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
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
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Acima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abaixo</translation>
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
        <translation>esta sessão Wayland precisa do plugin do Qt para Wayland, que não está instalado (o pacote qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>esta sessão Wayland não deixa nenhum programa pendurar uma prateleira na borda da tela, e também não há tela X11 (DISPLAY não está definida)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>não há sessão Wayland onde WAYLAND_DISPLAY indica, e também não há tela X11 (DISPLAY não está definida)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>não há tela em que pendurar a prateleira (nem WAYLAND_DISPLAY nem DISPLAY estão definidas)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY não está definida nesta sessão Wayland; por isso a prateleira usa a tela X11 da sessão, na qual talvez alguns arrastos não cheguem a ela</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>nenhum compositor responde onde WAYLAND_DISPLAY indica; por isso a prateleira usa a tela X11 desta sessão, na qual talvez alguns arrastos não cheguem a ela</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>falta XInput 2 ou XFixes ao seu servidor gráfico</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>seu ambiente de trabalho guarda isso para si</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, porque %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Os arrastos só são detectados no topo da tela</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Arraste até o meio da borda superior e a prateleira se abre.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>A prateleira não se abre quando você começa a arrastar</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Abra-a com o atalho ou pelo menu antes de arrastar.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Uma prateleira oculta não aparece quando o ponteiro chega à borda superior</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Abra-a com o atalho ou pelo menu.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Um clique em outro programa não fecha a barra com todos os itens</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Pressione Esc para fechá-la.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Atalhos não podem ser gravados aqui</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Escolha-os nas configurações do seu ambiente de trabalho.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Shift não é detectado depois que o arrasto começa</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Segure antes de começar a arrastar, e o item fica.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Solte para guardar</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Arraste aqui para guardar</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Esvaziar a prateleira (1 item)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Esvaziar a prateleira (%Ln item)</numerusform>
            <numerusform>Esvaziar a prateleira (%Ln itens)</numerusform>
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
            <numerusform>Corvane — %Ln itens</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Mostrar a prateleira</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Ver todos os itens…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferências…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Como funciona…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Procurar atualizações…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Sair do Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>O Corvane já está em execução, mas não responde.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Tente de novo em instantes, ou encerre o processo %1 e inicie o Corvane novamente.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Tente de novo em instantes, ou encerre-o e inicie o Corvane novamente.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Não foi possível ler o que veio do lugar onde as novas versões são anunciadas.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Uma versão mais nova que a de agora já havia sido anunciada. Alguém pode estar escondendo novidades de você; por isso nada foi aceito.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>O anunciado é uma versão que este programa não consegue verificar, ou nenhuma. Nada foi aceito.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>O anunciado não é renovado desde %1. Alguém pode estar escondendo novidades de você, ou seu relógio está errado.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>O que o Corvane lembrava de atualizações anteriores estava danificado. Foi posto de lado e recomeça na próxima verificação.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Não foi possível alcançar por uma conexão segura o lugar onde as novas versões são anunciadas. Tente mais tarde.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Não foi possível baixar a nova versão. Tente mais tarde.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>O arquivo baixado não tem o tamanho anunciado. Ele foi descartado.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>O arquivo baixado não foi assinado pelos autores do Corvane. Ele foi descartado.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>Não há espaço suficiente no disco.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Não foi possível gravar a nova versão no disco.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Consultado diretamente, sem proxy.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Consultado pelo proxy %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Nada foi consultado: um script escolhe seu proxy, e o Corvane não executa nenhum.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Nada foi consultado: seu proxy é de um tipo que o Corvane não pode usar.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>O registro de atualizações do Corvane estava danificado</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>O Corvane não conseguiu procurar atualizações</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>O Corvane não foi atualizado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Procurando atualizações…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>O Corvane está atualizado</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>Você tem a versão %1, a mais nova.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>O Corvane %1 está disponível</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>Você tem a versão %1. O download tem %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Baixando o Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Verificando e instalando…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>O Corvane %1 está instalado</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Ele será usado a partir da próxima vez que o Corvane for iniciado. Até lá, a versão anterior fica guardada ao lado.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>O Corvane %1 foi baixado</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Ele foi assinado pelos autores do Corvane e está na sua pasta de downloads como %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>As atualizações voltam no tempo…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>As atualizações não podem ser verificadas…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>As atualizações não foram renovadas…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>O registro de atualizações estava danificado…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>As atualizações não podem usar seu proxy…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 de %2 selecionados</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Arraste qualquer coisa até o topo da tela</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Arraste para fora quando chegar</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Segure Shift para manter na prateleira</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Comece a arrastar um arquivo, uma imagem ou um link e uma prateleira desce do topo da tela. Solte-o ali. Ele fica lá enquanto você troca de aplicativo, de espaço de trabalho ou de tela.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Leve o ponteiro ao topo da tela e a prateleira reaparece. Arraste o item para onde você está trabalhando. Pressione Espaço para ver uma prévia, ou Ctrl+C para copiar o caminho.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Normalmente um item deixa a prateleira quando você o solta. Segure Shift enquanto o arrasta e ele fica, para que você possa soltar a mesma coisa em vários lugares sem recolhê-la de novo.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Pelo teclado: pressione o atalho da prateleira e depois %1 para colar nela e %2 para percorrê-la.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Pelo teclado: pressione %1 e depois %2 para colar na prateleira e %3 para percorrê-la.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Versão %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Espaço para muitas coisas. Arraste para dentro, mude de lugar, arraste para fora. A prateleira se esvazia sozinha e sai do caminho.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Funciona no seu computador. Nada do que você solta é enviado a nós, registrado ou mandado a qualquer lugar. O Corvane só usa a rede para as prévias de links, que pedem ao site a própria página dele, e, onde houver, para a procura de atualizações. Ambas podem ser desligadas em Geral.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Abre a página do produto no navegador web</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Escrever ao suporte</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Abre uma nova mensagem no programa de e-mail</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Limpar o atalho</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>Não é possível gravar na sua pasta de configurações. As mudanças valem até o Corvane ser encerrado, e não são mantidas.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Prateleira</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Itens à vista</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>Um de cada vez. Use as setas para passar pelos outros.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln miniatura por vez, com setas para as outras.</numerusform>
            <numerusform>%Ln miniaturas por vez, com setas para as outras.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamento</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Iniciar com a sessão</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>O Corvane fica em segundo plano, com um ícone no painel.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Abrir a prateleira quando um arrasto começa</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Desligue para abri-la você mesmo, por exemplo com o atalho.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Mostrar prévias dos links soltos</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Pede ao site seu título e sua imagem; assim, o site fica sabendo que você tem o link. Fora a procura de atualizações, se houver, é a única vez que o Corvane usa a rede.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Manter os itens quando o Corvane for encerrado</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Eles voltam quando o Corvane for iniciado de novo. Até lá, imagens e textos ficam gravados na sua pasta pessoal.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Mostrar ou ocultar a prateleira</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Precisa de Super, Alt ou Ctrl. Se for limpo, resta o ícone no painel.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Mostrar ou ocultar todos os itens</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Sem atalho no início. A tecla Abaixo na prateleira faz o mesmo.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Procurar agora</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Procura uma nova versão imediatamente</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Procurar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>O gerenciador de programas do seu sistema mantém o Corvane atualizado.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Este programa não sabe onde procurar.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Oferecer também versões beta</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Elas chegam antes, e menos pessoas as testaram.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Passo %1 de %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Painel das preferências</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Digite um atalho…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Gravar atalho</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Essa combinação digita um caractere. Grave uma com Super, Alt ou Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Outro aplicativo já usa essa combinação.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Seu ambiente de trabalho ainda não respondeu.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Associe uma tecla a este comando nas configurações do seu ambiente de trabalho: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Adicione esta linha às configurações do seu ambiente de trabalho: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Seu ambiente de trabalho o associou a %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Novidades</translation>
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
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Volta ao passo anterior</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Ilustração: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Começar a usar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próximo</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Fecha este guia</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Vai ao próximo passo</translation>
    </message>
</context>
</TS>

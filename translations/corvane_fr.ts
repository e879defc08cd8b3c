<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Appuyer</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Sélectionner ou désélectionner</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Tous les éléments de l’étagère</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Éléments précédents</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Éléments suivants</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Copier les éléments sélectionnés</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Retirer les éléments sélectionnés</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Tous les éléments&#xa0;: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 sur %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>en préparation</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Appuyer</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Donner le focus</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Copier et retirer de l’étagère</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Éléments précédents</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Éléments suivants</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Tous les éléments</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Étagère</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>L’étagère est vide</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Retiré&#xa0;; il reste 1 élément</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Retiré&#xa0;; il reste %Ln élément</numerusform>
            <numerusform>Retiré&#xa0;; il reste %Ln éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 a été ajouté</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 élément a été ajouté</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln élément a été ajouté</numerusform>
            <numerusform>%Ln éléments ont été ajoutés</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Éléments de l’étagère&#xa0;: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>L’étagère est vide. %1 y met le contenu du presse-papiers.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 a été retiré&#xa0;; l’étagère est vide</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 a été retiré&#xa0;; il reste 1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 a été retiré&#xa0;; il reste %Ln élément</numerusform>
            <numerusform>%1 a été retiré&#xa0;; il reste %Ln éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>L’étagère est masquée</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Une étagère en haut de l’écran pour ce que vous faites glisser</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;To</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;Po</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;Eo</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 octet</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln octet</numerusform>
            <numerusform>%Ln octets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Afficher ou masquer l’étagère</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Afficher tous les éléments dans la barre</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Afficher les chemins et les liens de l’étagère, un par ligne</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Les afficher et les retirer de l’étagère</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Afficher un caractère NUL après chacun, sans saut de ligne</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Ouvrir les préférences</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Terminer Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Afficher cette aide</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Afficher la version</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Utilisation&#xa0;:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Place des fichiers et des liens sur l’étagère, et avec - un texte de l’entrée standard.
Sans argument, lance Corvane, ou affiche ou masque l’étagère de celui
qui est lancé.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>l’option %1 n’existe pas</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>aucune option de Corvane ne prend de valeur</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 et %2 ne vont pas ensemble</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null va avec --list et --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>les fichiers et les liens ne vont avec aucune option</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>l’entrée standard ne peut être posée qu’une fois sur l’étagère</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>ce n’est pas une adresse&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>il n’y a pas de fichier %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>l’entrée standard est illisible ou dépasse 256&#xa0;Mio</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>l’entrée standard n’est pas un texte en UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>il n’y a pas de texte sur l’entrée standard</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>l’étagère n’accepte pas %1 des éléments donnés</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>impossible d’écrire sur la sortie standard&#xa0;: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane est en cours d’exécution, mais ne répond pas</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>le Corvane en cours d’exécution signale&#xa0;: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>le Corvane en cours d’exécution ne sait pas faire cela&#xa0;; c’est peut-être une version plus ancienne</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>l’affichage ne peut pas être utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1&#xa0;; voir corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>le Corvane en cours d’exécution n’est pas encore prêt&#xa0;; réessayez dans un instant</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>le Corvane en cours d’exécution est surchargé&#xa0;; réessayez dans un instant</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>ce qui a été affiché est encore sur l’étagère</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la mémoire est insuffisante</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>la réponse du Corvane en cours d’exécution est illisible</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Conversion en PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 caractère</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln caractère</numerusform>
            <numerusform>%Ln caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Décompte des caractères…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Chemin copié</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Image copiée</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texte copié</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Lien copié</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>URI de données copié</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln élément copié</numerusform>
            <numerusform>%Ln éléments copiés</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Reste sur l’étagère</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Cela n’a pas été accepté</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>Non acceptés&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Le fichier n’est plus là</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Plus de %Ln élément</numerusform>
            <numerusform>Plus de %Ln éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln élément</numerusform>
            <numerusform>%Ln éléments</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Cet élément n’est plus là.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Modifié le %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
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
        <translation>seul le début est affiché</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée (pavé numérique)</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Page suiv.</translation>
    </message>
</context>
<context>
    <name>SessionChoice</name>
    <message>
        <source>this Wayland session takes Qt&apos;s plug-in for Wayland, which is not installed (the package qt6-wayland)</source>
        <translation>cette session Wayland demande le greffon Wayland de Qt, qui n’est pas installé (le paquet qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>cette session Wayland ne laisse aucun programme accrocher une étagère au bord de l’écran, et il n’y a pas non plus d’affichage X11 (DISPLAY n’est pas défini)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>il n’y a pas de session Wayland là où WAYLAND_DISPLAY l’indique, et pas non plus d’affichage X11 (DISPLAY n’est pas défini)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>il n’y a pas d’affichage pour l’étagère (ni WAYLAND_DISPLAY ni DISPLAY ne sont définis)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY n’est pas défini dans cette session Wayland&#xa0;; l’étagère utilise donc l’affichage X11 de la session, où certains glissements risquent de ne pas l’atteindre</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>aucun compositeur ne répond là où WAYLAND_DISPLAY l’indique&#xa0;; l’étagère utilise donc l’affichage X11 de cette session, où certains glissements risquent de ne pas l’atteindre</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>il manque XInput 2 ou XFixes à votre serveur d’affichage</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>votre bureau garde cela pour lui</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, car %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Les glissements ne sont détectés qu’en haut de l’écran</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Glissez vers le milieu du bord supérieur et l’étagère s’ouvre.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>L’étagère ne s’ouvre pas au début d’un glissement</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Ouvrez-la avec son raccourci ou depuis le menu avant de glisser.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Une étagère masquée n’apparaît pas quand le pointeur atteint le bord supérieur</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Ouvrez-la avec son raccourci ou depuis le menu.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Un clic dans un autre programme ne ferme pas la barre de tous les éléments</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Appuyez sur Échap pour la fermer.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Les raccourcis ne peuvent pas être enregistrés ici</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Choisissez-les dans les paramètres de votre bureau.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Maj n’est pas détectée une fois le glissement commencé</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Maintenez-la enfoncée avant de commencer à glisser, et l’élément reste.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Relâchez pour garder</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Déposez ici pour garder</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Vider l’étagère (1 élément)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Vider l’étagère (%Ln élément)</numerusform>
            <numerusform>Vider l’étagère (%Ln éléments)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 élément</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln élément</numerusform>
            <numerusform>Corvane — %Ln éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Afficher l’étagère</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Afficher tous les éléments…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Comment ça marche…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Quitter Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane est déjà lancé, mais ne répond pas.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Réessayez dans un instant, ou terminez le processus %1 et relancez Corvane.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Réessayez dans un instant, ou terminez-le et relancez Corvane.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Ce qui est venu de l’endroit où les nouvelles versions sont annoncées n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Une version plus récente que celle d’aujourd’hui a déjà été annoncée. Quelqu’un vous cache peut-être des nouvelles&#xa0;; rien n’a donc été pris.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Ce qui est annoncé est une version que ce programme ne peut pas vérifier, ou rien du tout. Rien n’a été pris.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Ce qui est annoncé n’a pas été renouvelé depuis le %1. Quelqu’un vous cache peut-être des nouvelles, ou votre horloge est fausse.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Ce que Corvane avait retenu des mises à jour précédentes était endommagé. Cela a été mis de côté et recommence à la prochaine vérification.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>L’endroit où les nouvelles versions sont annoncées n’a pas pu être joint par une connexion sûre. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>La nouvelle version n’a pas pu être téléchargée. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>Le fichier téléchargé n’a pas la longueur annoncée. Il a été supprimé.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>Le fichier téléchargé n’a pas été signé par les auteurs de Corvane. Il a été supprimé.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>Il n’y a pas assez de place sur le disque.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>La nouvelle version n’a pas pu être écrite sur le disque.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Demandé directement, sans serveur mandataire.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Demandé par le serveur mandataire %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Rien n’a été demandé&#xa0;: un script choisit votre serveur mandataire, et Corvane n’en exécute aucun.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Rien n’a été demandé&#xa0;: votre serveur mandataire est d’un type que Corvane ne peut pas utiliser.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>L’historique des mises à jour de Corvane était endommagé</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane n’a pas pu rechercher de mises à jour</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane n’a pas été mis à jour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane est à jour</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>Vous avez la version %1, la plus récente.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 est disponible</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>Vous avez la version %1. Le téléchargement fait %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Téléchargement de Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Vérification et installation…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 est installé</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Cette version sera utilisée au prochain démarrage de Corvane. La précédente est conservée à côté jusque-là.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 est téléchargé</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Le fichier a été signé par les auteurs de Corvane et se trouve dans votre dossier de téléchargements sous le nom %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Les mises à jour remontent le temps…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Les mises à jour ne sont pas vérifiables…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Les mises à jour n’ont pas été renouvelées…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>L’historique des mises à jour était endommagé…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Les mises à jour ne peuvent pas utiliser votre serveur mandataire…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 sur %2 sélectionnés</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Glissez quoi que ce soit en haut de l’écran</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Ressortez-le une fois arrivé</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Maintenez Maj pour le garder sur l’étagère</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Commencez à glisser un fichier, une image ou un lien, et une étagère descend du haut de l’écran. Déposez-le là. Il y reste pendant que vous changez d’application, d’espace de travail ou d’écran.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Amenez le pointeur en haut de l’écran et l’étagère réapparaît. Glissez l’élément là où vous travaillez. Appuyez sur Espace pour un aperçu, ou sur Ctrl+C pour copier son chemin.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Normalement, un élément quitte l’étagère quand vous le déposez. Maintenez Maj en le faisant glisser et il y reste&#xa0;: vous pouvez ainsi déposer la même chose à plusieurs endroits sans la récupérer de nouveau.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Au clavier&#xa0;: appuyez sur le raccourci de l’étagère, puis sur %1 pour y coller et sur %2 pour la parcourir.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Au clavier&#xa0;: appuyez sur %1, puis sur %2 pour coller sur l’étagère et sur %3 pour la parcourir.</translation>
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
        <translation>De la place pour beaucoup de choses. Glissez dedans, allez ailleurs, glissez dehors. L’étagère se vide d’elle-même et s’efface.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Fonctionne sur votre ordinateur. Rien de ce que vous déposez ne nous est transmis, n’est consigné ni envoyé où que ce soit. Corvane n’utilise le réseau que pour les aperçus de liens, qui demandent sa page au site concerné, et, là où elle existe, pour la recherche de mises à jour. Les deux se désactivent dans Général.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Ouvre la page du produit dans le navigateur web</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Écrire à l’assistance</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Ouvre un nouveau message dans le programme de messagerie</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Effacer le raccourci</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>Impossible d’écrire dans votre dossier de paramètres. Les changements valent jusqu’à ce que Corvane soit quitté, et ne sont pas conservés.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Étagère</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Éléments visibles</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>Un à la fois. Utilisez les flèches pour parcourir les autres.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln vignette à la fois, avec des flèches pour les autres.</numerusform>
            <numerusform>%Ln vignettes à la fois, avec des flèches pour les autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane fonctionne en arrière-plan, avec une icône dans le tableau de bord.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Ouvrir l’étagère au début d’un glissement</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Désactivez pour l’ouvrir vous-même, par exemple avec le raccourci.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Afficher un aperçu des liens déposés</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Demande au site son titre et son image&#xa0;; le site apprend donc que vous avez le lien. Hormis la recherche de mises à jour, si elle existe, c’est le seul cas où Corvane utilise le réseau.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Conserver les éléments à la fermeture de Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Ils seront de retour au prochain démarrage. D’ici là, les images et les textes sont enregistrés dans votre dossier personnel.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Afficher ou masquer l’étagère</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Nécessite Super, Alt ou Ctrl. Si vous l’effacez, il reste l’icône du tableau de bord.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Afficher ou masquer tous les éléments</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Non défini par défaut. La touche Bas sur l’étagère fait la même chose.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Recherche tout de suite une nouvelle version</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Rechercher automatiquement des mises à jour</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Le gestionnaire de logiciels de votre système tient Corvane à jour.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Ce programme ne sait pas où chercher.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Proposer aussi les versions bêta</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Elles arrivent plus tôt, et moins de gens les ont essayées.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Volet des préférences</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Tapez un raccourci…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Enregistrer un raccourci</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Cette combinaison saisit un caractère. Enregistrez-en une avec Super, Alt ou Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Une autre application utilise déjà cette combinaison.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Votre bureau n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Associez une touche à cette commande dans les paramètres de votre bureau&#xa0;: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Ajoutez cette ligne aux paramètres de votre bureau&#xa0;: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Votre bureau l’a associé à %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Téléchargement</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Revient à l’étape précédente</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Illustration&#xa0;: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Ferme ce guide</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Passe à l’étape suivante</translation>
    </message>
</context>
</TS>

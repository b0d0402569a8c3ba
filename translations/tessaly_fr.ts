<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Annotation</name>
    <message>
        <source>The mark has no “%1”.</source>
        <translation>L’annotation n’a pas de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The mark&apos;s “%1” cannot be %2.</source>
        <translation>«&#xa0;%1&#xa0;» de l’annotation ne peut pas être %2.</translation>
    </message>
</context>
<context>
    <name>AnnotationDocument</name>
    <message>
        <source>There are %1 marks; a document holds at most %2.</source>
        <translation>Il y a %1 annotations&#xa0;; un document en contient au plus %2.</translation>
    </message>
    <message>
        <source>The JSON text is longer than %1 MiB.</source>
        <translation>Le texte JSON dépasse %1 Mio.</translation>
    </message>
    <message>
        <source>The JSON text holds more than %1 values.</source>
        <translation>Le texte JSON contient plus de %1 valeurs.</translation>
    </message>
    <message>
        <source>The text is not JSON: %1 at byte %2.</source>
        <translation>Le texte n’est pas du JSON&#xa0;: %1 à l’octet %2.</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>“%1” is not a text.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un texte.</translation>
    </message>
    <message>
        <source>“%1” is not a pair of numbers.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une paire de nombres.</translation>
    </message>
    <message>
        <source>“%1” is not an object.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un objet.</translation>
    </message>
    <message>
        <source>The mark is not an object.</source>
        <translation>L’annotation n’est pas un objet.</translation>
    </message>
    <message>
        <source>“annotations” is not a list.</source>
        <translation>«&#xa0;annotations&#xa0;» n’est pas une liste.</translation>
    </message>
    <message>
        <source>Mark %1: %2</source>
        <translation>Annotation %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>“canvasSize” is missing.</source>
        <translation>«&#xa0;canvasSize&#xa0;» manque.</translation>
    </message>
    <message>
        <source>“%1” has a number that is not finite.</source>
        <translation>«&#xa0;%1&#xa0;» contient un nombre qui n’est pas fini.</translation>
    </message>
    <message>
        <source>The “%1” of mark %2 has a number that is not finite.</source>
        <translation>«&#xa0;%1&#xa0;» de l’annotation %2 contient un nombre qui n’est pas fini.</translation>
    </message>
    <message>
        <source>The JSON text is a list, not a document.</source>
        <translation>Le texte JSON est une liste et non un document.</translation>
    </message>
    <message>
        <source>There is no frame in it.</source>
        <translation>Il ne contient pas de cadre.</translation>
    </message>
    <message>
        <source>There is no watermark in it.</source>
        <translation>Il ne contient pas de filigrane.</translation>
    </message>
</context>
<context>
    <name>AnnotationStore</name>
    <message>
        <source>Couldn&apos;t crop the selected region.</source>
        <translation>Impossible de rogner la zone sélectionnée.</translation>
    </message>
</context>
<context>
    <name>AutomationClient</name>
    <message>
        <source>The running Tessaly ended before the capture was done.</source>
        <translation>L’instance de Tessaly en cours s’est arrêtée avant la fin de la capture.</translation>
    </message>
    <message>
        <source>The session bus ended before the capture was done.</source>
        <translation>Le bus de session s’est arrêté avant la fin de la capture.</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The file %1 starts another program and was left as it is.</source>
        <translation>Le fichier %1 démarre un autre programme et a été laissé tel quel.</translation>
    </message>
    <message>
        <source>The file %1 could not be removed: %2.</source>
        <translation>Le fichier %1 n’a pas pu être retiré&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>BmpEncoder</name>
    <message>
        <source>A BMP file can hold 2 GiB of pixels, and this picture has more.</source>
        <translation>Un fichier BMP contient au plus 2 Gio de pixels, et cette image en a davantage.</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Screenshot, %d by %d pixels</source>
        <translation>Capture d’écran, %d sur %d pixels</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
</context>
<context>
    <name>CanvasDrop</name>
    <message>
        <source>The dropped picture</source>
        <translation>L’image déposée</translation>
    </message>
</context>
<context>
    <name>CaptureDelays</name>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 secondes</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 secondes</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 secondes</translation>
    </message>
</context>
<context>
    <name>CaptureEngine</name>
    <message>
        <source>No display was found.</source>
        <translation>Aucun écran n’a été trouvé.</translation>
    </message>
    <message>
        <source>No front window was found.</source>
        <translation>Aucune fenêtre au premier plan n’a été trouvée.</translation>
    </message>
    <message>
        <source>Couldn&apos;t crop the selected region.</source>
        <translation>Impossible de rogner la zone sélectionnée.</translation>
    </message>
    <message>
        <source>There is no window %1 on the screen; tessaly windows lists those that are there.</source>
        <translation>Il n’y a pas de fenêtre %1 à l’écran&#xa0;; «&#xa0;tessaly windows&#xa0;» liste celles qui s’y trouvent.</translation>
    </message>
</context>
<context>
    <name>CaptureHotKey</name>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>CaptureMenu</name>
    <message>
        <source>Quick Capture</source>
        <translation>Capture rapide</translation>
    </message>
    <message>
        <source>New Collage…</source>
        <translation>Nouveau collage…</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tout l’écran</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Ouvrir une image…</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Côte à côte</translation>
    </message>
    <message>
        <source>Stacked</source>
        <translation>Empilé</translation>
    </message>
</context>
<context>
    <name>CaptureService</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Can&apos;t grant the permission? Keep using the macOS shortcut ⇧⌘4 and Tessaly will open each screenshot in the editor, or paste a screenshot with ⇧⌘N.</source>
        <translation>Vous pouvez aussi continuer à utiliser la touche de capture d’écran de votre bureau&#xa0;: Tessaly ouvrira chaque capture dans l’éditeur. Ou collez une capture avec Ctrl+Maj+N.</translation>
    </message>
    <message>
        <source>Detail: %1</source>
        <translation>Détail&#xa0;: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t capture the screen</source>
        <translation>Impossible de capturer l’écran</translation>
    </message>
    <message>
        <source>Use System Screenshots…</source>
        <translation>Utiliser les captures du système…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>CollageService</name>
    <message>
        <source>And %1 others.</source>
        <translation>Et %1 autres.</translation>
    </message>
    <message>
        <source>Joining images…</source>
        <translation>Assemblage des images…</translation>
    </message>
    <message>
        <source>Some images couldn&apos;t be opened</source>
        <translation>Certaines images n’ont pas pu être ouvertes</translation>
    </message>
    <message>
        <source>Collage</source>
        <translation>Collage</translation>
    </message>
</context>
<context>
    <name>ColorQuantizer</name>
    <message>
        <source>There is not enough memory to reduce the colors of this picture.</source>
        <translation>La mémoire est insuffisante pour réduire les couleurs de cette image.</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>%1: %2</source>
        <extracomment>a command and one of the rows of its menu: &quot;Export As: PNG&quot;</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Outil</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>indisponible pour l’instant</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>New Blank Canvas</source>
        <translation>Nouveau canevas vide</translation>
    </message>
    <message>
        <source>New from Clipboard</source>
        <translation>Nouveau depuis le presse-papiers</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Ouvrir un élément récent</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nouvel onglet</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Fermer l’onglet</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Save as Tessaly Document…</source>
        <translation>Enregistrer comme document Tessaly…</translation>
    </message>
    <message>
        <source>Export As…</source>
        <translation>Exporter en…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copier l’image</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Partager…</translation>
    </message>
    <message>
        <source>Copy Text from Image</source>
        <translation>Copier le texte de l’image</translation>
    </message>
    <message>
        <source>Copy Style</source>
        <translation>Copier le style</translation>
    </message>
    <message>
        <source>Paste Style</source>
        <translation>Coller le style</translation>
    </message>
    <message>
        <source>Save Style</source>
        <translation>Enregistrer le style</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>Bring Forward</source>
        <translation>Avancer d’un plan</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <translation>Reculer d’un plan</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Mettre au premier plan</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Mettre à l’arrière-plan</translation>
    </message>
    <message>
        <source>Select Next</source>
        <translation>Sélectionner la suivante</translation>
    </message>
    <message>
        <source>Select Previous</source>
        <translation>Sélectionner la précédente</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Turn On Snapping</source>
        <translation>Activer l’aimantation</translation>
    </message>
    <message>
        <source>Turn Off Snapping</source>
        <translation>Désactiver l’aimantation</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Customize Toolbar…</source>
        <translation>Personnaliser la barre d’outils…</translation>
    </message>
    <message>
        <source>Show Options Bar</source>
        <translation>Afficher la barre d’options</translation>
    </message>
    <message>
        <source>Hide Options Bar</source>
        <translation>Masquer la barre d’options</translation>
    </message>
    <message>
        <source>Show Live Text</source>
        <translation>Afficher le texte interactif</translation>
    </message>
    <message>
        <source>Hide Live Text</source>
        <translation>Masquer le texte interactif</translation>
    </message>
    <message>
        <source>Rotate Counterclockwise</source>
        <translation>Pivoter dans le sens antihoraire</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Pivoter dans le sens horaire</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Resize Image…</source>
        <translation>Redimensionner l’image…</translation>
    </message>
    <message>
        <source>Sharpen…</source>
        <translation>Renforcer la netteté…</translation>
    </message>
    <message>
        <source>Crop…</source>
        <translation>Rogner…</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>Épingler à l’écran</translation>
    </message>
    <message>
        <source>Unlock Pinned Screenshots</source>
        <translation>Déverrouiller les captures épinglées</translation>
    </message>
    <message>
        <source>Close Pinned Screenshots</source>
        <translation>Fermer les captures épinglées</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Capturer une zone</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Capturer une fenêtre</translation>
    </message>
    <message>
        <source>Capture Front Window</source>
        <translation>Capturer la fenêtre au premier plan</translation>
    </message>
    <message>
        <source>Capture Full Screen</source>
        <translation>Capturer tout l’écran</translation>
    </message>
    <message>
        <source>Full Screen on…</source>
        <translation>Tout l’écran sur…</translation>
    </message>
    <message>
        <source>Recapture Last Region</source>
        <translation>Recapturer la dernière zone</translation>
    </message>
    <message>
        <source>Copy Text from Region</source>
        <translation>Copier le texte d’une zone</translation>
    </message>
    <message>
        <source>Region to Clipboard</source>
        <translation>Zone vers le presse-papiers</translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation>Capture rapide</translation>
    </message>
    <message>
        <source>Region to File</source>
        <translation>Zone vers un fichier</translation>
    </message>
    <message>
        <source>Full Screen to Clipboard</source>
        <translation>Tout l’écran vers le presse-papiers</translation>
    </message>
    <message>
        <source>Full Screen to File</source>
        <translation>Tout l’écran vers un fichier</translation>
    </message>
    <message>
        <source>New Collage — Side by side</source>
        <translation>Nouveau collage — côte à côte</translation>
    </message>
    <message>
        <source>New Collage — Stacked</source>
        <translation>Nouveau collage — empilé</translation>
    </message>
    <message>
        <source>Start Window</source>
        <translation>Fenêtre de démarrage</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Quit Tessaly</source>
        <translation>Quitter Tessaly</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Command Palette…</source>
        <translation>Palette de commandes…</translation>
    </message>
    <message>
        <source>About Tessaly</source>
        <translation>À propos de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly Help</source>
        <translation>Aide de Tessaly</translation>
    </message>
    <message>
        <source>What’s New in Tessaly</source>
        <translation>Nouveautés de Tessaly</translation>
    </message>
    <message>
        <source>Welcome Guide</source>
        <translation>Guide de bienvenue</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Ouvrir Tessaly</translation>
    </message>
    <message>
        <source>Open Last Capture</source>
        <translation>Ouvrir la dernière capture</translation>
    </message>
    <message>
        <source>Capture Timer</source>
        <translation>Retardateur de capture</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Effacer le menu</translation>
    </message>
</context>
<context>
    <name>DocumentActions</name>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the document</source>
        <translation>Impossible d’enregistrer le document</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the Tessaly document next to the image</source>
        <translation>Impossible d’enregistrer le document Tessaly à côté de l’image</translation>
    </message>
    <message>
        <source>Preparing the image…</source>
        <translation>Préparation de l’image…</translation>
    </message>
    <message>
        <source>Saving the document…</source>
        <translation>Enregistrement du document…</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
</context>
<context>
    <name>DocumentFileDialog</name>
    <message>
        <source>Images and Tessaly documents</source>
        <translation>Images et documents Tessaly</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save Document</source>
        <translation>Enregistrer le document</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
</context>
<context>
    <name>DragFile</name>
    <message>
        <source>The folder %1 could not be made.</source>
        <translation>Le dossier %1 n’a pas pu être créé.</translation>
    </message>
</context>
<context>
    <name>DroppedContent</name>
    <message>
        <source>Tessaly fetches nothing from the network. Save the picture first, and drop its file.</source>
        <translation>Tessaly ne récupère rien sur le réseau. Enregistrez d’abord l’image, puis déposez son fichier.</translation>
    </message>
</context>
<context>
    <name>EntryCommands</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Delete from History</source>
        <translation>Supprimer de l’historique</translation>
    </message>
</context>
<context>
    <name>EntryTexts</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Captures are kept only on this Mac, until you delete them.</source>
        <translation>Les captures ne sont conservées que sur cet ordinateur, jusqu’à ce que vous les supprimiez.</translation>
    </message>
    <message>
        <source>Captures are kept only on this Mac, for %1 days.</source>
        <translation>Les captures ne sont conservées que sur cet ordinateur, pendant %1 jours.</translation>
    </message>
</context>
<context>
    <name>Errand</name>
    <message>
        <source>The capture was cancelled.</source>
        <translation>La capture a été annulée.</translation>
    </message>
    <message>
        <source>The path could not be printed.</source>
        <translation>Le chemin n’a pas pu être affiché.</translation>
    </message>
</context>
<context>
    <name>ExportService</name>
    <message>
        <source>Encoding the image…</source>
        <translation>Encodage de l’image…</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>Saving the image…</source>
        <translation>Enregistrement de l’image…</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the image</source>
        <translation>Impossible d’enregistrer l’image</translation>
    </message>
    <message>
        <source>Couldn&apos;t share the image</source>
        <translation>Impossible de partager l’image</translation>
    </message>
</context>
<context>
    <name>FileKinds</name>
    <message>
        <source>Tessaly document</source>
        <translation>Document Tessaly</translation>
    </message>
</context>
<context>
    <name>FlattenService</name>
    <message>
        <source>Couldn&apos;t prepare the image</source>
        <translation>Impossible de préparer l’image</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be rendered with its annotations, so nothing was exported. Your work is still open — try again, or crop the image to make it smaller.</source>
        <translation>L’image n’a pas pu être rendue avec ses annotations&#xa0;; rien n’a donc été exporté. Votre travail est toujours ouvert&#xa0;: réessayez, ou rognez l’image pour la rendre plus petite.</translation>
    </message>
</context>
<context>
    <name>FrameSettings</name>
    <message>
        <source>Couldn&apos;t use this image as a watermark</source>
        <translation>Impossible d’utiliser cette image comme filigrane</translation>
    </message>
</context>
<context>
    <name>FrameStyle</name>
    <message>
        <source>The frame&apos;s “%1” cannot be %2.</source>
        <translation>«&#xa0;%1&#xa0;» du cadre ne peut pas être %2.</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Coucher de soleil</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Océan</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphite</translation>
    </message>
    <message>
        <source>Mist</source>
        <translation>Brume</translation>
    </message>
</context>
<context>
    <name>GifEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as GIF.</source>
        <translation>La mémoire est insuffisante pour écrire cette image en GIF.</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Take a capture</source>
        <translation>Prendre une capture</translation>
    </message>
    <message>
        <source>Press Ctrl+Alt+4 and drag over a region; Ctrl+Alt+5 takes a window, Ctrl+Alt+3 the whole screen. The settings record other keys, where the desktop lets programs have keys of their own.
While you select: Space moves the selection, Esc cancels. The bar on the screen changes between region, window and screen.
A timer, in the settings and in the menu of the tray, waits some seconds, so that you can open a menu first.</source>
        <translation>Appuyez sur Ctrl+Alt+4 et faites glisser sur une zone&#xa0;; Ctrl+Alt+5 capture une fenêtre, Ctrl+Alt+3 tout l’écran. Les paramètres permettent d’autres touches, là où le bureau en laisse aux programmes.
Pendant la sélection&#xa0;: Espace déplace la sélection, Échap annule. La barre à l’écran passe d’une zone à une fenêtre ou à l’écran.
Un retardateur, dans les paramètres et dans le menu de la zone de notification, attend quelques secondes, le temps d’ouvrir un menu.</translation>
    </message>
    <message>
        <source>Mark it up</source>
        <translation>L’annoter</translation>
    </message>
    <message>
        <source>A letter chooses a tool: A for arrows, T for texts, B to pixelate. Drag on the picture to draw, click a mark to change it.
Everything can be undone with Ctrl+Z, and marks stay movable as long as the capture is kept as a Tessaly document.
Pixelated, blurred and covered parts are gone from every picture that leaves Tessaly.</source>
        <translation>Une lettre choisit un outil&#xa0;: A pour les flèches, T pour les textes, B pour pixelliser. Faites glisser sur l’image pour dessiner, cliquez sur une annotation pour la modifier.
Tout peut être annulé avec Ctrl+Z, et les annotations restent mobiles tant que la capture est conservée comme document Tessaly.
Les parties pixellisées, floutées et masquées ont disparu de toute image qui quitte Tessaly.</translation>
    </message>
    <message>
        <source>Hand it on</source>
        <translation>La transmettre</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C copies the picture, Ctrl+S saves it, and the handle in the tool bar drags it into another program.
Pin to Screen keeps it above all other windows.</source>
        <translation>Ctrl+Maj+C copie l’image, Ctrl+S l’enregistre, et la poignée de la barre d’outils la fait glisser dans un autre programme.
«&#xa0;Épingler à l’écran&#xa0;» la garde au-dessus de toutes les autres fenêtres.</translation>
    </message>
    <message>
        <source>Find it again</source>
        <translation>La retrouver</translation>
    </message>
    <message>
        <source>The start window shows your recent captures; type to search the texts in them. Delete removes one, and can be undone for ten seconds.
Captures are kept only on this computer, for as long as the settings say.</source>
        <translation>La fenêtre de démarrage montre vos captures récentes&#xa0;; tapez pour rechercher dans leurs textes. Suppr en retire une, ce qui peut être annulé pendant dix secondes.
Les captures ne sont conservées que sur cet ordinateur, aussi longtemps que l’indiquent les paramètres.</translation>
    </message>
    <message>
        <source>Where Tessaly is</source>
        <translation>Où se trouve Tessaly</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray. On a desktop without a tray, start it again to see the start window. Ctrl+Q quits it.
Ctrl+Shift+P finds any command, setting and tool by its name.</source>
        <translation>Tessaly attend sous forme d’icône dans la zone de notification. Sur un bureau qui n’en a pas, démarrez-le de nouveau pour voir la fenêtre de démarrage. Ctrl+Q le quitte.
Ctrl+Maj+P trouve toute commande, tout paramètre et tout outil par son nom.</translation>
    </message>
    <message>
        <source>From scripts</source>
        <translation>Depuis des scripts</translation>
    </message>
    <message>
        <source>The command tessaly does most of this without a window: tessaly --help lists what it can.</source>
        <translation>La commande «&#xa0;tessaly&#xa0;» fait presque tout cela sans fenêtre&#xa0;: «&#xa0;tessaly --help&#xa0;» liste ses possibilités.</translation>
    </message>
    <message>
        <source>Tools and their letters</source>
        <translation>Les outils et leurs lettres</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Les commandes et leurs touches</translation>
    </message>
    <message>
        <source>Tessaly Help</source>
        <translation>Aide de Tessaly</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>%1 could not be deleted: %2.</source>
        <translation>%1 n’a pas pu être supprimé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2.</source>
        <translation>%1 n’a pas pu être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>A capture without identifier or date cannot be kept.</source>
        <translation>Une capture sans identifiant ni date ne peut pas être conservée.</translation>
    </message>
    <message>
        <source>%1 cannot be understood.</source>
        <translation>%1 est incompréhensible.</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
</context>
<context>
    <name>HistoryEntry</name>
    <message>
        <source>The index of the history cannot be used: %1.</source>
        <translation>L’index de l’historique est inutilisable&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The “%1” of the capture cannot be read.</source>
        <translation>«&#xa0;%1&#xa0;» de la capture est illisible.</translation>
    </message>
    <message>
        <source>The capture has no “%1”.</source>
        <translation>La capture n’a pas de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>it has no version or no entries</source>
        <translation>la version ou les entrées manquent</translation>
    </message>
    <message>
        <source>it is of version %1</source>
        <translation>il est de version %1</translation>
    </message>
</context>
<context>
    <name>HistoryPruning</name>
    <message>
        <source>1 week</source>
        <translation>1 semaine</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mois</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 mois</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 an</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Toujours</translation>
    </message>
</context>
<context>
    <name>ImageEncoder</name>
    <message>
        <source>There is no picture to write.</source>
        <translation>Il n’y a pas d’image à écrire.</translation>
    </message>
    <message>
        <source>A %1 picture can be at most %2 pixels wide and high, and this one has %3 × %4.</source>
        <translation>Une image %1 peut avoir au plus %2 pixels de largeur et de hauteur, et celle-ci en a %3 × %4.</translation>
    </message>
    <message>
        <source>There is not enough memory to write this picture.</source>
        <translation>La mémoire est insuffisante pour écrire cette image.</translation>
    </message>
</context>
<context>
    <name>ImageReading</name>
    <message>
        <source>%1 is damaged or incomplete.</source>
        <translation>%1 est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 est vide.</translation>
    </message>
    <message>
        <source>%1 is not a picture of a format that can be read.</source>
        <translation>%1 n’est pas une image d’un format lisible.</translation>
    </message>
    <message>
        <source>%1 has %2 × %3 pixels, more than the %4 million that are allowed.</source>
        <translation>%1 a %2 × %3 pixels, plus que les %4 millions autorisés.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2.</source>
        <translation>%1 n’a pas pu être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is a folder and not a picture.</source>
        <translation>%1 est un dossier et non une image.</translation>
    </message>
    <message>
        <source>%1 is not a file that holds a picture.</source>
        <translation>%1 n’est pas un fichier qui contient une image.</translation>
    </message>
    <message>
        <source>%1 is too large for a picture.</source>
        <translation>%1 est trop volumineux pour une image.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>Resizing…</source>
        <translation>Redimensionnement…</translation>
    </message>
    <message>
        <source>Sharpening…</source>
        <translation>Renforcement de la netteté…</translation>
    </message>
    <message>
        <source>Cropping…</source>
        <translation>Rognage…</translation>
    </message>
    <message>
        <source>Rotating…</source>
        <translation>Rotation…</translation>
    </message>
    <message>
        <source>Flipping…</source>
        <translation>Retournement…</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the image</source>
        <translation>Impossible de modifier l’image</translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for the new picture. Your work is unchanged.</source>
        <translation>La mémoire est insuffisante pour la nouvelle image. Votre travail est inchangé.</translation>
    </message>
</context>
<context>
    <name>Intents</name>
    <message>
        <source>Open in Editor</source>
        <translation>Ouvrir dans l’éditeur</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>Enregistrer dans un fichier</translation>
    </message>
    <message>
        <source>Capture a region with</source>
        <translation>Capturer une zone et</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Capturer une zone</translation>
    </message>
    <message>
        <source>Capture a window with</source>
        <translation>Capturer une fenêtre et</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Capturer une fenêtre</translation>
    </message>
    <message>
        <source>Capture the screen with</source>
        <translation>Capturer l’écran et</translation>
    </message>
    <message>
        <source>Capture Full Screen</source>
        <translation>Capturer tout l’écran</translation>
    </message>
    <message>
        <source>Copy text with</source>
        <translation>Copier le texte avec</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Copier le texte</translation>
    </message>
    <message>
        <source>Open the last capture in</source>
        <translation>Ouvrir la dernière capture dans</translation>
    </message>
    <message>
        <source>Open Last Capture</source>
        <translation>Ouvrir la dernière capture</translation>
    </message>
    <message>
        <source>%1 takes no destination.</source>
        <translation>%1 n’accepte pas de destination.</translation>
    </message>
    <message>
        <source>There is no destination &quot;%1&quot;; it is one of editor, clipboard and file.</source>
        <translation>Il n’y a pas de destination «&#xa0;%1&#xa0;»&#xa0;; c’est l’une de editor, clipboard et file.</translation>
    </message>
    <message>
        <source>There are no captures in the history yet.</source>
        <translation>Il n’y a pas encore de captures dans l’historique.</translation>
    </message>
</context>
<context>
    <name>JpegEncoder</name>
    <message>
        <source>The picture could not be written as JPEG: %1.</source>
        <translation>L’image n’a pas pu être écrite en JPEG&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>LoupeView</name>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
</context>
<context>
    <name>MarkClipboard</name>
    <message>
        <source>What was copied is damaged and can&apos;t be pasted.</source>
        <translation>Le contenu copié est endommagé et ne peut pas être collé.</translation>
    </message>
    <message>
        <source>The copied picture</source>
        <translation>L’image copiée</translation>
    </message>
    <message>
        <source>There is nothing on the clipboard that can be pasted here.</source>
        <translation>Le presse-papiers ne contient rien qui puisse être collé ici.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read: %2</source>
        <translation>«&#xa0;%1&#xa0;» est illisible&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MarkLimits</name>
    <message>
        <source>its %1 lies at (%2, %3)</source>
        <translation>%1 se trouve en (%2, %3)</translation>
    </message>
    <message>
        <source>its %1 has %2 elements</source>
        <translation>%1 a %2 éléments</translation>
    </message>
    <message>
        <source>its %1 is %2</source>
        <translation>%1 vaut %2</translation>
    </message>
    <message>
        <source>its tailAngle is not a number</source>
        <translation>tailAngle n’est pas un nombre</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Surligneur</translation>
    </message>
    <message>
        <source>Obscured area</source>
        <translation>Zone masquée</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Tampon</translation>
    </message>
    <message>
        <source>Pen stroke</source>
        <translation>Trait de crayon</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Autocollant</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <extracomment>A mark&apos;s kind and the text in it</extracomment>
        <translation>%1 «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>&amp;Capture</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Zone de notification</translation>
    </message>
</context>
<context>
    <name>MissingScreenSource</name>
    <message>
        <source>Start Tessaly from within the desktop that is to be captured, without TESSALY_PLATFORM in its environment.</source>
        <translation>Démarrez Tessaly depuis le bureau à capturer, sans TESSALY_PLATFORM dans son environnement.</translation>
    </message>
</context>
<context>
    <name>MissingWindowSource</name>
    <message>
        <source>This desktop does not tell where its windows are.</source>
        <translation>Ce bureau n’indique pas où se trouvent ses fenêtres.</translation>
    </message>
</context>
<context>
    <name>Mnemonics</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Novelties</name>
    <message>
        <source>Keys that work everywhere</source>
        <translation>Des touches qui marchent partout</translation>
    </message>
    <message>
        <source>Take a region, a window or the whole screen while you work in another program. The settings record other combinations.</source>
        <translation>Capturez une zone, une fenêtre ou tout l’écran en travaillant dans un autre programme. Les paramètres permettent d’autres combinaisons.</translation>
    </message>
    <message>
        <source>At home in the tray</source>
        <translation>Chez lui dans la zone de notification</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray, with every way to capture, a timer and your pinned screenshots.</source>
        <translation>Tessaly attend sous forme d’icône dans la zone de notification, avec toutes les façons de capturer, un retardateur et vos captures épinglées.</translation>
    </message>
    <message>
        <source>Find any command</source>
        <translation>Trouver toute commande</translation>
    </message>
    <message>
        <source>Press Ctrl+Shift+P and type: commands, settings and tools are one word away.</source>
        <translation>Appuyez sur Ctrl+Maj+P et tapez&#xa0;: commandes, paramètres et outils sont à un mot de vous.</translation>
    </message>
    <message>
        <source>Still yours alone</source>
        <translation>Toujours à vous seul</translation>
    </message>
    <message>
        <source>Captures are kept only on this computer. Tessaly opens no network connection.</source>
        <translation>Les captures ne sont conservées que sur cet ordinateur. Tessaly n’ouvre aucune connexion réseau.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Tapered</source>
        <comment>arrowhead.tapered</comment>
        <extracomment>An arrow whose stroke tapers to a sharp head</extracomment>
        <translation>Effilée</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>arrowhead.filled</comment>
        <extracomment>An arrow head that is a solid, filled triangle</extracomment>
        <translation>Pleine</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>arrowhead.open</comment>
        <extracomment>An arrow head of two open strokes that form a V</extracomment>
        <translation>Ouverte</translation>
    </message>
    <message>
        <source>Concave</source>
        <comment>arrowhead.concave</comment>
        <extracomment>An arrow head that is a triangle with a concave back edge</extracomment>
        <translation>Concave</translation>
    </message>
    <message>
        <source>Check</source>
        <comment>Check</comment>
        <translation>Coche</translation>
    </message>
    <message>
        <source>Cross</source>
        <comment>Cross</comment>
        <translation>Croix</translation>
    </message>
    <message>
        <source>Exclamation mark</source>
        <comment>stamp.exclamation</comment>
        <translation>Point d’exclamation</translation>
    </message>
    <message>
        <source>Question mark</source>
        <comment>stamp.question</comment>
        <translation>Point d’interrogation</translation>
    </message>
    <message>
        <source>Star</source>
        <comment>Star</comment>
        <translation>Étoile</translation>
    </message>
    <message>
        <source>Dot</source>
        <comment>Dot</comment>
        <translation>Point</translation>
    </message>
    <message>
        <source>Number</source>
        <comment>Number</comment>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <comment>Pixelate</comment>
        <translation>Pixelliser</translation>
    </message>
    <message>
        <source>Blur</source>
        <comment>Blur</comment>
        <translation>Flouter</translation>
    </message>
    <message>
        <source>Solid</source>
        <comment>Solid</comment>
        <translation>Uni</translation>
    </message>
    <message>
        <source>Stripes</source>
        <comment>Stripes</comment>
        <translation>Rayures</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>Free</comment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Classic</source>
        <comment>style.preset.classic</comment>
        <translation>Classique</translation>
    </message>
    <message>
        <source>Thin Blue</source>
        <comment>style.preset.thinBlue</comment>
        <translation>Fin bleu</translation>
    </message>
    <message>
        <source>Curved Orange</source>
        <comment>style.preset.curvedOrange</comment>
        <translation>Courbe orange</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>style.preset.title</comment>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Note</source>
        <comment>style.preset.note</comment>
        <translation>Note</translation>
    </message>
    <message>
        <source>On Dark Background</source>
        <comment>style.preset.onDark</comment>
        <translation>Sur fond sombre</translation>
    </message>
    <message>
        <source>Pink Frame</source>
        <comment>style.preset.pinkFrame</comment>
        <translation>Cadre rose</translation>
    </message>
    <message>
        <source>Thin Blue Frame</source>
        <comment>style.preset.thinBlueFrame</comment>
        <translation>Cadre bleu fin</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Proportions</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Proportions</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Hauteur en pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Lock Ratio</source>
        <translation>Verrouiller les proportions</translation>
    </message>
    <message>
        <source>Keep the present ratio of width to height (Shift while dragging)</source>
        <translation>Conserver le rapport actuel entre largeur et hauteur (Maj en faisant glisser)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Leave the picture as it is (Esc)</source>
        <translation>Laisser l’image telle quelle (Échap)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Cut the picture to the rectangle (Return)</source>
        <translation>Rogner l’image au rectangle (Entrée)</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Margin around the picture</source>
        <translation>Marge autour de l’image</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Coins</translation>
    </message>
    <message>
        <source>Radius of the picture&apos;s corners</source>
        <translation>Rayon des coins de l’image</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>Shadow that the picture throws</source>
        <translation>Ombre portée par l’image</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Present the screenshot on a background</source>
        <translation>Présenter la capture d’écran sur un fond</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Couleur de fond</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Uni</translation>
    </message>
    <message>
        <source>Solid %1</source>
        <translation>Uni %1</translation>
    </message>
    <message>
        <source>Other Color…</source>
        <translation>Autre couleur…</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Gradient, color or transparency</source>
        <translation>Dégradé, couleur ou transparence</translation>
    </message>
    <message>
        <source>Aspect ratio of the framed picture</source>
        <translation>Proportions de l’image encadrée</translation>
    </message>
    <message>
        <source>Apply to new captures</source>
        <translation>Appliquer aux nouvelles captures</translation>
    </message>
    <message>
        <source>New captures open with this frame and watermark. Off by default, so captures stay exactly as taken.</source>
        <translation>Les nouvelles captures s’ouvrent avec ce cadre et ce filigrane. Désactivé par défaut, afin que les captures restent telles quelles.</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>A caption beside the stamp</source>
        <translation>Une légende à côté du tampon</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Pointe</translation>
    </message>
    <message>
        <source>A tail that points away from the stamp</source>
        <translation>Une pointe qui part du tampon</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>A disc behind the sign</source>
        <translation>Un disque derrière le signe</translation>
    </message>
    <message>
        <source>Choose Image…</source>
        <translation>Choisir une image…</translation>
    </message>
    <message>
        <source>Choose a picture to put onto the screenshot</source>
        <translation>Choisir une image à poser sur la capture d’écran</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <source>Line width (Alt+wheel over the selected mark)</source>
        <translation>Épaisseur du trait (Alt+molette sur l’annotation sélectionnée)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Text size (Alt+wheel over the selected mark)</source>
        <translation>Taille du texte (Alt+molette sur l’annotation sélectionnée)</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>How strongly the highlight covers what lies below</source>
        <translation>Force avec laquelle le surlignage couvre ce qui est dessous</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Strength. For passwords, use Solid: it hides everything.</source>
        <translation>Intensité. Pour les mots de passe, utiliser «&#xa0;Uni&#xa0;»&#xa0;: tout est masqué.</translation>
    </message>
    <message>
        <source>Dimming</source>
        <translation>Assombrissement</translation>
    </message>
    <message>
        <source>How dark it is outside the spotlight</source>
        <translation>Obscurité en dehors du projecteur</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Grossissement</translation>
    </message>
    <message>
        <source>How much the magnifier enlarges (Alt+wheel over the selected mark)</source>
        <translation>Grossissement de la loupe (Alt+molette sur l’annotation sélectionnée)</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Pleine</translation>
    </message>
    <message>
        <source>Both Ends</source>
        <translation>Double</translation>
    </message>
    <message>
        <source>Curved</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rond</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>System Font</source>
        <translation>Police du système</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Tampon</translation>
    </message>
    <message>
        <source>Hiding</source>
        <translation>Masquage</translation>
    </message>
    <message>
        <source>Arrow Head</source>
        <translation>Pointe de flèche</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Tiled over the whole picture</source>
        <translation>En mosaïque sur toute l’image</translation>
    </message>
    <message>
        <source>Opacity of the watermark</source>
        <translation>Opacité du filigrane</translation>
    </message>
    <message>
        <source>Size of the watermark relative to the picture</source>
        <translation>Taille du filigrane par rapport à l’image</translation>
    </message>
    <message>
        <source>Couldn&apos;t use this image as a watermark</source>
        <translation>Impossible d’utiliser cette image comme filigrane</translation>
    </message>
    <message>
        <source>Choose an image for your watermark. Tessaly keeps its own copy.</source>
        <translation>Choisissez une image pour votre filigrane. Tessaly en garde sa propre copie.</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</source>
        <translation>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Draw a text or a logo over the finished picture</source>
        <translation>Dessiner un texte ou un logo sur l’image terminée</translation>
    </message>
    <message>
        <source>Kind of watermark</source>
        <translation>Type de filigrane</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Choose another logo</source>
        <translation>Choisir un autre logo</translation>
    </message>
    <message>
        <source>Your name or notice</source>
        <translation>Votre nom ou mention</translation>
    </message>
    <message>
        <source>The text of the watermark</source>
        <translation>Le texte du filigrane</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>Texte du filigrane</translation>
    </message>
    <message>
        <source>Nothing is drawn until there is a text.</source>
        <translation>Rien n’est dessiné tant qu’il n’y a pas de texte.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>A text or a logo over the finished picture</source>
        <translation>Un texte ou un logo sur l’image terminée</translation>
    </message>
</context>
<context>
    <name>PendingDeletion</name>
    <message>
        <source>Deleted “%1” from the history.</source>
        <translation>«&#xa0;%1&#xa0;» a été supprimé de l’historique.</translation>
    </message>
    <message>
        <source>Deleted %1 captures from the history.</source>
        <translation>%1 captures ont été supprimées de l’historique.</translation>
    </message>
</context>
<context>
    <name>PictureTitle</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>PinnedScreenshot</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Ouvrir dans l’éditeur</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Let Clicks Pass Through</source>
        <translation>Laisser passer les clics</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>On this desktop other windows can cover it</source>
        <translation>Sur ce bureau, d’autres fenêtres peuvent la couvrir</translation>
    </message>
</context>
<context>
    <name>PlatformChoice</name>
    <message>
        <source>TESSALY_PLATFORM=none switches capturing off.</source>
        <translation>TESSALY_PLATFORM=none désactive la capture.</translation>
    </message>
    <message>
        <source>TESSALY_PLATFORM names no platform to capture from: %1.</source>
        <translation>TESSALY_PLATFORM ne désigne aucune plateforme de capture&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no desktop to capture: neither WAYLAND_DISPLAY nor DISPLAY is set.</source>
        <translation>Il n’y a pas de bureau à capturer&#xa0;: ni WAYLAND_DISPLAY ni DISPLAY n’est défini.</translation>
    </message>
</context>
<context>
    <name>PortalScreenSource</name>
    <message>
        <source>“%1” is no file of this computer.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier de cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 est illisible.</translation>
    </message>
    <message>
        <source>It does not show the whole of the screen.</source>
        <translation>Elle ne montre pas tout l’écran.</translation>
    </message>
    <message>
        <source>The screenshot was cancelled.</source>
        <translation>La capture d’écran a été annulée.</translation>
    </message>
    <message>
        <source>The desktop does not allow Tessaly to take screenshots.</source>
        <translation>Le bureau n’autorise pas Tessaly à prendre des captures d’écran.</translation>
    </message>
    <message>
        <source>This desktop has no portal that takes screenshots.</source>
        <translation>Ce bureau n’a pas de portail qui prend des captures d’écran.</translation>
    </message>
    <message>
        <source>The desktop portal did not answer within %1 seconds.</source>
        <translation>Le portail du bureau n’a pas répondu en %1 secondes.</translation>
    </message>
    <message>
        <source>The desktop portal gave a picture that cannot be used: %1</source>
        <translation>Le portail du bureau a fourni une image inutilisable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Allow screenshots for Tessaly in the desktop&apos;s settings, on the page of the applications. Where there is no such page, “flatpak permission-remove screenshot screenshot” in a terminal makes the desktop ask again.</source>
        <translation>Autorisez les captures d’écran pour Tessaly dans les paramètres du bureau, à la page des applications. En l’absence d’une telle page, «&#xa0;flatpak permission-remove screenshot screenshot&#xa0;» dans un terminal amène le bureau à redemander.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and, for this desktop, %1; then log out and in again.</source>
        <translation>Installez xdg-desktop-portal et, pour ce bureau, %1&#xa0;; puis fermez et rouvrez la session.</translation>
    </message>
    <message>
        <source>Try once more. If it fails again, “systemctl --user restart xdg-desktop-portal” in a terminal starts the portal anew.</source>
        <translation>Réessayez. En cas de nouvel échec, «&#xa0;systemctl --user restart xdg-desktop-portal&#xa0;» dans un terminal redémarre le portail.</translation>
    </message>
</context>
<context>
    <name>PortalSharing</name>
    <message>
        <source>%1 could not be handed over: %2.</source>
        <translation>%1 n’a pas pu être transmis&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>PostCaptureRouter</name>
    <message>
        <source>%1 has no free name left.</source>
        <translation>Il n’y a plus de nom libre dans %1.</translation>
    </message>
    <message>
        <source>%1 could not be written: the picture does not fit its format.</source>
        <translation>%1 n’a pas pu être écrit&#xa0;: l’image ne convient pas à son format.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the image</source>
        <translation>Impossible d’enregistrer l’image</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>At least one needs to stay active.</source>
        <translation>L’un des deux au moins doit rester actif.</translation>
    </message>
    <message>
        <source>Show in Dock</source>
        <translation>Ouvrir une fenêtre au démarrage de Tessaly</translation>
    </message>
    <message>
        <source>Show in menu bar</source>
        <translation>Afficher dans la zone de notification</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Ouvrir à l’ouverture de session</translation>
    </message>
    <message>
        <source>Show welcome on launch</source>
        <translation>Afficher le guide de bienvenue au démarrage</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Restart Tessaly to apply the new language.</source>
        <translation>Redémarrez Tessaly pour appliquer la nouvelle langue.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Open the editor</source>
        <translation>Ouvrir l’éditeur</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>Enregistrer dans un fichier</translation>
    </message>
    <message>
        <source>Show a quick access thumbnail</source>
        <translation>Afficher une vignette d’accès rapide</translation>
    </message>
    <message>
        <source>Corner of the thumbnail</source>
        <translation>Coin de la vignette</translation>
    </message>
    <message>
        <source>Choose what happens right after you take a screenshot. &quot;Save to file&quot; uses your default save folder when set.</source>
        <translation>Choisissez ce qui se passe juste après une capture d’écran. «&#xa0;Enregistrer dans un fichier&#xa0;» utilise le dossier d’enregistrement par défaut s’il est défini.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Format par défaut</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Lower values produce smaller files but more compression artefacts. 100% is lossless.</source>
        <translation>Des valeurs plus basses donnent des fichiers plus petits, mais plus d’artefacts de compression. 100&#xa0;% est sans perte.</translation>
    </message>
    <message>
        <source>Default save folder</source>
        <translation>Dossier d’enregistrement par défaut</translation>
    </message>
    <message>
        <source>Auto-copy to clipboard after saving</source>
        <translation>Copier dans le presse-papiers après l’enregistrement</translation>
    </message>
    <message>
        <source>Copy to clipboard at full size (1×)</source>
        <translation>Copier dans le presse-papiers en taille réelle (1×)</translation>
    </message>
    <message>
        <source>Retina screenshots are 2× (144 dpi) and some apps paste them at half size. Turn this on to always paste at full pixel size — just as sharp, but the image lands larger in the document.</source>
        <translation>Les captures haute densité sont en 2× (144 ppp) et certaines applications les collent à la moitié de leur taille. Activez ceci pour toujours coller en taille réelle — tout aussi net, mais l’image est plus grande dans le document.</translation>
    </message>
    <message>
        <source>Adjust the selection before capturing</source>
        <translation>Ajuster la sélection avant de capturer</translation>
    </message>
    <message>
        <source>After dragging, the selection keeps its handles so you can resize or move it. Press Return or Space, or double-click inside it, to capture — handy for catching the right frame of a video.</source>
        <translation>Après le glissement, la sélection garde ses poignées pour être redimensionnée ou déplacée. Appuyez sur Entrée ou Espace, ou double-cliquez à l’intérieur, pour capturer — pratique pour saisir la bonne image d’une vidéo.</translation>
    </message>
    <message>
        <source>Show a magnifier while selecting</source>
        <translation>Afficher une loupe pendant la sélection</translation>
    </message>
    <message>
        <source>Shows the pixels under the pointer with its position and color, and the size of the selection in pixels. Press C to copy the color.</source>
        <translation>Montre les pixels sous le pointeur avec sa position et sa couleur, et la taille de la sélection en pixels. Appuyez sur C pour copier la couleur.</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Figer l’écran pendant la sélection</translation>
    </message>
    <message>
        <source>Hide desktop icons</source>
        <translation>Masquer les icônes du bureau</translation>
    </message>
    <message>
        <source>Leaves the desktop icons out of region and full-screen captures. Your desktop doesn&apos;t change.</source>
        <translation>Exclut les icônes du bureau des captures de zone et de tout l’écran. Votre bureau ne change pas.</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Retardateur</translation>
    </message>
    <message>
        <source>Adds a countdown before the shot — time to open a menu or trigger a hover state. For region and window, the countdown starts after you pick the area.</source>
        <translation>Ajoute un compte à rebours avant la prise — le temps d’ouvrir un menu ou de survoler un élément. Pour une zone ou une fenêtre, il commence après la sélection.</translation>
    </message>
    <message>
        <source>Play sound when capturing</source>
        <translation>Émettre un son lors de la capture</translation>
    </message>
    <message>
        <source>Include the window shadow</source>
        <translation>Inclure l’ombre de la fenêtre</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Fond transparent</translation>
    </message>
    <message>
        <source>Captures the window with its shadow and rounded corners, on transparency instead of the desktop behind it. JPEG and BMP have no transparency, so those export on white.</source>
        <translation>Capture la fenêtre avec son ombre et ses coins arrondis, sur fond transparent plutôt que sur le bureau derrière elle. JPEG et BMP n’ont pas de transparence et sont exportés sur fond blanc.</translation>
    </message>
    <message>
        <source>Open editor after a system screenshot</source>
        <translation>Ouvrir l’éditeur après une capture du système</translation>
    </message>
    <message>
        <source>Watched folder</source>
        <translation>Dossier surveillé</translation>
    </message>
    <message>
        <source>Keep using macOS&apos;s ⇧⌘4 shortcut — Tessaly watches the folder where screenshots are saved and opens each new one in the editor.</source>
        <translation>Continuez à utiliser la touche de capture de votre bureau — Tessaly surveille le dossier où les captures sont enregistrées et ouvre chaque nouvelle dans l’éditeur.</translation>
    </message>
    <message>
        <source>This works without the Screen Recording permission — as does pasting a screenshot with ⇧⌘N.</source>
        <translation>Cela fonctionne aussi là où votre bureau ne laisse aucun programme capturer l’écran — tout comme coller une capture avec Ctrl+Maj+N.</translation>
    </message>
    <message>
        <source>After capturing</source>
        <translation>Après la capture</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Region capture</source>
        <translation>Capture d’une zone</translation>
    </message>
    <message>
        <source>While capturing</source>
        <translation>Pendant la capture</translation>
    </message>
    <message>
        <source>Window capture</source>
        <translation>Capture d’une fenêtre</translation>
    </message>
    <message>
        <source>System screenshots</source>
        <translation>Captures du système</translation>
    </message>
    <message>
        <source>Default color</source>
        <translation>Couleur par défaut</translation>
    </message>
    <message>
        <source>Default line width</source>
        <translation>Épaisseur de trait par défaut</translation>
    </message>
    <message>
        <source>Arrow head</source>
        <translation>Pointe de flèche</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Obscure style</source>
        <translation>Style de masquage</translation>
    </message>
    <message>
        <source>Spotlight shape</source>
        <translation>Forme du projecteur</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Tampon</translation>
    </message>
    <message>
        <source>Drawing defaults</source>
        <translation>Dessin par défaut</translation>
    </message>
    <message>
        <source>Text defaults</source>
        <translation>Texte par défaut</translation>
    </message>
    <message>
        <source>Tool defaults</source>
        <translation>Outils par défaut</translation>
    </message>
    <message>
        <source>Keep a history of captures</source>
        <translation>Conserver un historique des captures</translation>
    </message>
    <message>
        <source>Keep captures for</source>
        <translation>Conserver les captures</translation>
    </message>
    <message>
        <source>Captures in the history</source>
        <translation>Captures dans l’historique</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
</context>
<context>
    <name>ProgressPanel</name>
    <message>
        <source>Stop and leave everything as it was (Esc)</source>
        <translation>Arrêter et tout laisser tel quel (Échap)</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
</context>
<context>
    <name>QuickAccess</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Copier l’image</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the picture in the default folder</source>
        <translation>Enregistrer l’image dans le dossier par défaut</translation>
    </message>
    <message>
        <source>Annotate</source>
        <translation>Annoter</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>Épingler à l’écran</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Copier le texte</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Recognition</name>
    <message>
        <source>The language data &quot;%1&quot; for text recognition could not be loaded.</source>
        <translation>Les données de langue «&#xa0;%1&#xa0;» pour la reconnaissance de texte n’ont pas pu être chargées.</translation>
    </message>
    <message>
        <source>The picture did not reach text recognition.</source>
        <translation>L’image n’est pas parvenue à la reconnaissance de texte.</translation>
    </message>
    <message>
        <source>Text in %1 is not recognized because its language data is not installed; the package %2 adds it.</source>
        <translation>Le texte en %1 n’est pas reconnu, car ses données de langue ne sont pas installées&#xa0;; le paquet %2 les ajoute.</translation>
    </message>
    <message>
        <source>The picture is too large for text recognition.</source>
        <translation>L’image est trop grande pour la reconnaissance de texte.</translation>
    </message>
    <message>
        <source>No language data for text recognition is installed; the package tesseract-ocr-eng has those for English.</source>
        <translation>Aucune donnée de langue n’est installée pour la reconnaissance de texte&#xa0;; le paquet tesseract-ocr-fra contient celles du français.</translation>
    </message>
    <message>
        <source>Text recognition ended unexpectedly on this picture.</source>
        <translation>La reconnaissance de texte s’est arrêtée de façon inattendue sur cette image.</translation>
    </message>
    <message>
        <source>Text cannot be recognized because the program tessaly-recognition is not installed.</source>
        <translation>Le texte ne peut pas être reconnu, car le programme tessaly-recognition n’est pas installé.</translation>
    </message>
    <message>
        <source>Text recognition, %1, could not be started: %2.</source>
        <translation>La reconnaissance de texte, %1, n’a pas pu être démarrée&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>RequestReading</name>
    <message>
        <source>The option %1 of a capture cannot be &quot;%2&quot;.</source>
        <translation>L’option %1 d’une capture ne peut pas être «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that can be captured.</source>
        <translation>«&#xa0;%1&#xa0;» n’est rien qui puisse être capturé.</translation>
    </message>
    <message>
        <source>A capture has no option %1.</source>
        <translation>Une capture n’a pas d’option %1.</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>%1 n’a pas pu être écrit&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>SaveImageDialog</name>
    <message>
        <source>Save Image</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
</context>
<context>
    <name>SaveOptionsAccessory</name>
    <message>
        <source>Lower values produce smaller files but more compression artefacts. 100% is lossless.</source>
        <translation>Des valeurs plus basses donnent des fichiers plus petits, mais plus d’artefacts de compression. 100&#xa0;% est sans perte.</translation>
    </message>
    <message>
        <source>Lower values produce smaller files but more compression artefacts.</source>
        <translation>Des valeurs plus basses donnent des fichiers plus petits, mais plus d’artefacts de compression.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Also save Tessaly document</source>
        <translation>Enregistrer aussi un document Tessaly</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>The kind of file to write</source>
        <translation>Le type de fichier à écrire</translation>
    </message>
    <message>
        <source>Saves an .tessaly file next to the image, so you can reopen it later and keep editing the annotations.</source>
        <translation>Enregistre un fichier .tessaly à côté de l’image, pour la rouvrir plus tard et continuer à modifier les annotations.</translation>
    </message>
</context>
<context>
    <name>SettingBinding</name>
    <message>
        <source>The setting holds only until Tessaly is closed.</source>
        <translation>Le paramètre ne vaut que jusqu’à la fermeture de Tessaly.</translation>
    </message>
</context>
<context>
    <name>SettingTable</name>
    <message>
        <source>%1 is either true or false, not &quot;%2&quot;.</source>
        <translation>%1 vaut soit true, soit false, et non «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>%1 is a whole number from %3 to %4, not &quot;%2&quot;.</source>
        <translation>%1 est un nombre entier de %3 à %4, et non «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>%1 is a number from %3 to %4, not &quot;%2&quot;.</source>
        <translation>%1 est un nombre de %3 à %4, et non «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>%1 is a color like FF3366, not &quot;%2&quot;.</source>
        <translation>%1 est une couleur comme FF3366, et non «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>%1 is one of %3, not &quot;%2&quot;.</source>
        <translation>%1 est l’un de %3, et non «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The settings %1 cannot be read: it is not a file.</source>
        <translation>Les paramètres %1 sont illisibles&#xa0;: ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: %2.</source>
        <translation>Les paramètres %1 sont illisibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: the file is too large.</source>
        <translation>Les paramètres %1 sont illisibles&#xa0;: le fichier est trop volumineux.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: they are a list.</source>
        <translation>Les paramètres %1 sont illisibles&#xa0;: c’est une liste.</translation>
    </message>
    <message>
        <source>The setting %1 needs a finite number.</source>
        <translation>Le paramètre %1 demande un nombre fini.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be written: the unreadable file stays in the way.</source>
        <translation>Les paramètres %1 ne peuvent pas être écrits&#xa0;: le fichier illisible reste en place.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be written: another program is writing them.</source>
        <translation>Les paramètres %1 ne peuvent pas être écrits&#xa0;: un autre programme les écrit.</translation>
    </message>
</context>
<context>
    <name>ShortcutStateView</name>
    <message>
        <source>On this desktop: %1</source>
        <translation>Sur ce bureau&#xa0;: %1</translation>
    </message>
    <message>
        <source>The desktop has given it no keys.</source>
        <translation>Le bureau ne lui a donné aucune touche.</translation>
    </message>
    <message>
        <source>Not heard: another program uses this shortcut.</source>
        <translation>Sans effet&#xa0;: un autre programme utilise ce raccourci.</translation>
    </message>
    <message>
        <source>Not heard: already used by %1.</source>
        <translation>Sans effet&#xa0;: déjà utilisé par %1.</translation>
    </message>
</context>
<context>
    <name>SwayConnection</name>
    <message>
        <source>Sway does not tell its windows.</source>
        <translation>Sway n’indique pas ses fenêtres.</translation>
    </message>
</context>
<context>
    <name>SwayWindowSource</name>
    <message>
        <source>The window is no longer there.</source>
        <translation>La fenêtre n’est plus là.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>La fenêtre n’est pas à l’écran.</translation>
    </message>
</context>
<context>
    <name>TessalyDocument</name>
    <message>
        <source>Its %1 %2.</source>
        <translation>L’élément %1&#xa0;%2.</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>manque</translation>
    </message>
    <message>
        <source>is a symbolic link</source>
        <translation>est un lien symbolique</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>est illisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>It is not a folder that can be opened.</source>
        <translation>Ce n’est pas un dossier qui peut être ouvert.</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>n’est pas un fichier</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>est trop volumineux</translation>
    </message>
    <message>
        <source>This document was created with a newer version of Tessaly. Update Tessaly to open it.</source>
        <translation>Ce document a été créé avec une version plus récente de Tessaly. Mettez Tessaly à jour pour l’ouvrir.</translation>
    </message>
    <message>
        <source>The document is damaged or incomplete.</source>
        <translation>Le document est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>%1 could not be written: a folder stands there that is not a Tessaly document.</source>
        <translation>%1 n’a pas pu être écrit&#xa0;: il s’y trouve un dossier qui n’est pas un document Tessaly.</translation>
    </message>
</context>
<context>
    <name>TiffEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as TIFF.</source>
        <translation>La mémoire est insuffisante pour écrire cette image en TIFF.</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Surligneur</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixelliser</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Tampon</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Crayon</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Autocollant</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesAlert</name>
    <message>
        <source>Do you want to save your annotations?</source>
        <translation>Voulez-vous enregistrer vos annotations&#xa0;?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don&apos;t save them.</source>
        <translation>Vos modifications seront perdues si vous ne les enregistrez pas.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark&apos;s “%1” cannot be %2.</source>
        <translation>«&#xa0;%1&#xa0;» du filigrane ne peut pas être %2.</translation>
    </message>
</context>
<context>
    <name>WaylandConnection</name>
    <message>
        <source>No Wayland compositor answers.</source>
        <translation>Aucun compositeur Wayland ne répond.</translation>
    </message>
    <message>
        <source>The Wayland compositor does not answer.</source>
        <translation>Le compositeur Wayland ne répond pas.</translation>
    </message>
</context>
<context>
    <name>WaylandScreenSource</name>
    <message>
        <source>This build of Tessaly cannot ask the Wayland compositor for the screen.</source>
        <translation>Cette version de Tessaly ne sait pas demander l’écran au compositeur Wayland.</translation>
    </message>
    <message>
        <source>This Wayland compositor does not let programs capture the screen.</source>
        <translation>Ce compositeur Wayland ne permet pas aux programmes de capturer l’écran.</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <translation>Aucun écran n’a été trouvé.</translation>
    </message>
    <message>
        <source>The display %1 is not connected.</source>
        <translation>L’écran %1 n’est pas connecté.</translation>
    </message>
    <message>
        <source>The Wayland compositor did not give the pixels of the display %1.</source>
        <translation>Le compositeur Wayland n’a pas fourni les pixels de l’écran %1.</translation>
    </message>
</context>
<context>
    <name>WebPEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as WebP.</source>
        <translation>La mémoire est insuffisante pour écrire cette image en WebP.</translation>
    </message>
</context>
<context>
    <name>WidgetOpenPanels</name>
    <message>
        <source>Open Images</source>
        <translation>Ouvrir des images</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
</context>
<context>
    <name>X11Connection</name>
    <message>
        <source>There is no screen to capture: DISPLAY names no X server.</source>
        <translation>Il n’y a pas d’écran à capturer&#xa0;: DISPLAY ne désigne aucun serveur X.</translation>
    </message>
    <message>
        <source>No X server answers at %1.</source>
        <translation>Aucun serveur X ne répond à %1.</translation>
    </message>
</context>
<context>
    <name>X11ScreenSource</name>
    <message>
        <source>The X server no longer answers.</source>
        <translation>Le serveur X ne répond plus.</translation>
    </message>
    <message>
        <source>The area to capture lies outside the screen.</source>
        <translation>La zone à capturer se trouve hors de l’écran.</translation>
    </message>
    <message>
        <source>The X server did not give the screen&apos;s pixels.</source>
        <translation>Le serveur X n’a pas fourni les pixels de l’écran.</translation>
    </message>
</context>
<context>
    <name>X11WindowSource</name>
    <message>
        <source>The window was closed before it was captured.</source>
        <translation>La fenêtre a été fermée avant d’être capturée.</translation>
    </message>
    <message>
        <source>The window “%1” was closed before it was captured.</source>
        <translation>La fenêtre «&#xa0;%1&#xa0;» a été fermée avant d’être capturée.</translation>
    </message>
    <message>
        <source>The window lies outside the screen.</source>
        <translation>La fenêtre se trouve hors de l’écran.</translation>
    </message>
</context>
<context>
    <name>tessaly::AboutWindow</name>
    <message>
        <source>About Tessaly</source>
        <translation>À propos de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Takes pictures of the screen, marks them up and hands them on.</source>
        <translation>Prend des images de l’écran, les annote et les transmet.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Logiciel libre sous licence publique générale GNU, version 3 ou ultérieure. Sans aucune garantie.</translation>
    </message>
    <message>
        <source>Made with Qt %1, Tesseract, ZXing, libheif and giflib.</source>
        <translation>Réalisé avec Qt %1, Tesseract, ZXing, libheif et giflib.</translation>
    </message>
    <message>
        <source>Copy Version</source>
        <translation>Copier la version</translation>
    </message>
    <message>
        <source>Copy the versions of Tessaly, Qt and the system, for a report</source>
        <translation>Copier les versions de Tessaly, de Qt et du système, pour un rapport</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Fermer (Échap)</translation>
    </message>
</context>
<context>
    <name>tessaly::AutomationService</name>
    <message>
        <source>Another user&apos;s program is not heard.</source>
        <translation>Le programme d’un autre utilisateur n’est pas écouté.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’action «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>tessaly::CanvasController</name>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>For a screen reader: a mark&apos;s name, its number, how many marks there are</extracomment>
        <translation>%1, %2 sur %3</translation>
    </message>
</context>
<context>
    <name>tessaly::CanvasMenu</name>
    <message>
        <source>Paste Here</source>
        <translation>Coller ici</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>tessaly::CaptureHistory</name>
    <message>
        <source>The history couldn&apos;t be updated: %1</source>
        <translation>L’historique n’a pas pu être mis à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>The capture couldn&apos;t be kept in the history: %1</source>
        <translation>La capture n’a pas pu être conservée dans l’historique&#xa0;: %1</translation>
    </message>
    <message>
        <source>Another Tessaly keeps the history; captures of this one are handed to it.</source>
        <translation>Un autre Tessaly tient l’historique&#xa0;; les captures de celui-ci lui sont transmises.</translation>
    </message>
    <message>
        <source>The history couldn&apos;t be read: %1</source>
        <translation>L’historique n’a pas pu être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Keeping the capture…</source>
        <translation>Conservation de la capture…</translation>
    </message>
</context>
<context>
    <name>tessaly::CaptureMenu</name>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
</context>
<context>
    <name>tessaly::CaptureModeBar</name>
    <message>
        <source>Select what to capture</source>
        <translation>Choisir ce qu’il faut capturer</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Select an area (1)</source>
        <translation>Sélectionner une zone (1)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Pick a window (2)</source>
        <translation>Choisir une fenêtre (2)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tout l’écran</translation>
    </message>
    <message>
        <source>Capture the whole screen (3)</source>
        <translation>Capturer tout l’écran (3)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close without a capture (Esc)</source>
        <translation>Fermer sans capturer (Échap)</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capturer</translation>
    </message>
    <message>
        <source>Capture what is selected (Return)</source>
        <translation>Capturer la sélection (Entrée)</translation>
    </message>
</context>
<context>
    <name>tessaly::CaptureService</name>
    <message>
        <source>No region has been captured yet.</source>
        <translation>Aucune zone n’a encore été capturée.</translation>
    </message>
</context>
<context>
    <name>tessaly::ColorSwatches</name>
    <message>
        <source>Other Color…</source>
        <translation>Autre couleur…</translation>
    </message>
    <message>
        <source>%1 %2 (%3)</source>
        <translation>%1&#xa0;%2 (%3)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1&#xa0;%2</translation>
    </message>
</context>
<context>
    <name>tessaly::CommandPalette</name>
    <message>
        <source>Command Palette</source>
        <translation>Palette de commandes</translation>
    </message>
    <message>
        <source>Find a command, a setting or a tool</source>
        <translation>Trouver une commande, un paramètre ou un outil</translation>
    </message>
    <message>
        <source>Type to search, choose with the arrow keys and Return (Esc closes)</source>
        <translation>Taper pour rechercher, choisir avec les flèches et Entrée (Échap ferme)</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Nothing is called “%1”.</source>
        <translation>Rien ne s’appelle «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>tessaly::CountdownPanel</name>
    <message>
        <source>Countdown</source>
        <translation>Compte à rebours</translation>
    </message>
    <message>
        <source>Esc to cancel</source>
        <translation>Échap pour annuler</translation>
    </message>
    <message>
        <source>Click to cancel</source>
        <translation>Cliquer pour annuler</translation>
    </message>
</context>
<context>
    <name>tessaly::DragOutHandle</name>
    <message>
        <source>Drag</source>
        <translation>Glisser</translation>
    </message>
    <message>
        <source>Drag the finished picture into another program</source>
        <translation>Glisser l’image terminée dans un autre programme</translation>
    </message>
    <message>
        <source>Drag out</source>
        <translation>Glisser ailleurs</translation>
    </message>
    <message>
        <source>Drag this into another program, or press Ctrl+Shift+C to copy the picture.</source>
        <translation>Glissez ceci dans un autre programme, ou appuyez sur Ctrl+Maj+C pour copier l’image.</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorActions</name>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>Live Text isn&apos;t available on this Mac</source>
        <translation>Le texte interactif n’est pas disponible sur cet ordinateur</translation>
    </message>
    <message>
        <source>Preparing the image…</source>
        <translation>Préparation de l’image…</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the image</source>
        <translation>Impossible de lire l’image</translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for it.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>Choisir une image</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</source>
        <translation>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the image</source>
        <translation>Impossible d’ouvrir l’image</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorStatus</name>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Document size in real pixels and its resolution. Retina captures are 2× (144 dpi) and some apps paste them at half size — turn on “Copy to clipboard at full size” in Settings ▸ Capture to always paste at 1×.</source>
        <translation>Taille du document en pixels réels et sa résolution. Les captures haute densité sont en 2× (144 ppp) et certaines applications les collent à la moitié de leur taille — avec «&#xa0;Copier dans le presse-papiers en taille réelle&#xa0;» dans Paramètres ▸ Capture, elles sont toujours collées en 1×.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>%1 × %2 px · %3 dpi</source>
        <translation>%1 × %2 px · %3 ppp</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorTabs</name>
    <message>
        <source>Open captures</source>
        <translation>Captures ouvertes</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nouvel onglet</translation>
    </message>
    <message>
        <source>%1 — not saved</source>
        <translation>%1 — non enregistré</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom (Ctrl+wheel on the canvas)</source>
        <translation>Zoom (Ctrl+molette sur le canevas)</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorWindow</name>
    <message>
        <source>%1[*] — Tessaly</source>
        <translation>%1[*] — Tessaly</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorWindowController</name>
    <message>
        <source>Opening %1…</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the document</source>
        <translation>Impossible d’ouvrir le document</translation>
    </message>
    <message>
        <source>This document comes from a newer version of Tessaly</source>
        <translation>Ce document provient d’une version plus récente de Tessaly</translation>
    </message>
    <message>
        <source>It has been opened as a copy, so saving won&apos;t remove anything this version doesn&apos;t understand. To keep editing the original, update Tessaly.</source>
        <translation>Il a été ouvert en tant que copie, afin que l’enregistrement ne supprime rien de ce que cette version ne comprend pas. Pour continuer à modifier l’original, mettez Tessaly à jour.</translation>
    </message>
    <message>
        <source>Pasted image</source>
        <translation>Image collée</translation>
    </message>
    <message>
        <source>No image on the clipboard</source>
        <translation>Aucune image dans le presse-papiers</translation>
    </message>
    <message>
        <source>Dropped picture</source>
        <translation>Image déposée</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the picture</source>
        <translation>Impossible d’ouvrir l’image</translation>
    </message>
    <message>
        <source>A link cannot be opened</source>
        <translation>Un lien ne peut pas être ouvert</translation>
    </message>
</context>
<context>
    <name>tessaly::EmojiButton</name>
    <message>
        <source>Sticker</source>
        <translation>Autocollant</translation>
    </message>
    <message>
        <source>Other emoji or short text</source>
        <translation>Autre emoji ou texte court</translation>
    </message>
</context>
<context>
    <name>tessaly::FilePreview</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 sélectionnés</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Aucun aperçu</translation>
    </message>
</context>
<context>
    <name>tessaly::HelpWindow</name>
    <message>
        <source>Tessaly Help</source>
        <translation>Aide de Tessaly</translation>
    </message>
    <message>
        <source>Find in the help</source>
        <translation>Rechercher dans l’aide</translation>
    </message>
    <message>
        <source>Find in the help (Ctrl+F); Return goes on, Shift+Return goes back</source>
        <translation>Rechercher dans l’aide (Ctrl+F)&#xa0;; Entrée avance, Maj+Entrée recule</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>tessaly::HistoryGrid</name>
    <message>
        <source>Recent Captures</source>
        <translation>Captures récentes</translation>
    </message>
</context>
<context>
    <name>tessaly::HotKeyRecorderView</name>
    <message>
        <source>Already used by %1</source>
        <translation>Déjà utilisé par %1</translation>
    </message>
    <message>
        <source>Click and press the new shortcut</source>
        <translation>Cliquer et appuyer sur le nouveau raccourci</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Appuyer sur le raccourci…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an action and its shortcut</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tessaly::IconChoice</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tessaly::LinkToastView</name>
    <message>
        <source>Open Link</source>
        <translation>Ouvrir le lien</translation>
    </message>
    <message>
        <source>Open the link with your browser (Return)</source>
        <translation>Ouvrir le lien avec le navigateur (Entrée)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Fermer (Échap)</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextLayer</name>
    <message>
        <source>Selected text: %1</source>
        <translation>Texte sélectionné&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextMenu</name>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Ouvrir le lien</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextOverlay</name>
    <message>
        <source>Analyzing text…</source>
        <translation>Analyse du texte…</translation>
    </message>
    <message>
        <source>Live Text isn&apos;t available on this Mac</source>
        <translation>Le texte interactif n’est pas disponible sur cet ordinateur</translation>
    </message>
    <message>
        <source>No text in this image</source>
        <translation>Aucun texte dans cette image</translation>
    </message>
    <message>
        <source>Text copied to clipboard</source>
        <translation>Texte copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>Code content copied to clipboard</source>
        <translation>Contenu du code copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the link</source>
        <translation>Impossible d’ouvrir le lien</translation>
    </message>
</context>
<context>
    <name>tessaly::NamePrompt</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>%1 (Return)</source>
        <translation>%1 (Entrée)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Annuler (Échap)</translation>
    </message>
</context>
<context>
    <name>tessaly::NoticeBar</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Keep what was deleted (Ctrl+Z)</source>
        <translation>Garder ce qui a été supprimé (Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>tessaly::NumberSlider</name>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
</context>
<context>
    <name>tessaly::OptionsBar</name>
    <message>
        <source>Choose a tool, or select a mark to change its style.</source>
        <translation>Choisissez un outil, ou sélectionnez une annotation pour changer son style.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
</context>
<context>
    <name>tessaly::OverflowRow</name>
    <message>
        <source>More Options</source>
        <translation>Plus d’options</translation>
    </message>
</context>
<context>
    <name>tessaly::OverlayScrollBar</name>
    <message>
        <source>Horizontal position</source>
        <translation>Position horizontale</translation>
    </message>
    <message>
        <source>Vertical position</source>
        <translation>Position verticale</translation>
    </message>
</context>
<context>
    <name>tessaly::OverlaySession</name>
    <message>
        <source>Selection ready. Drag the handles or use the arrow keys to adjust it, then press Return to capture.</source>
        <translation>Sélection prête. Faites glisser les poignées ou utilisez les touches fléchées pour l’ajuster, puis appuyez sur Entrée pour capturer.</translation>
    </message>
    <message>
        <source>Copied color %1</source>
        <translation>Couleur %1 copiée</translation>
    </message>
    <message>
        <source>Select the area to capture. Drag, or use arrow keys to move and Shift-arrows to resize. Press Return to capture, Escape to cancel.</source>
        <translation>Sélectionnez la zone à capturer. Faites glisser, ou utilisez les flèches pour déplacer et Maj+flèches pour redimensionner. Entrée pour capturer, Échap pour annuler.</translation>
    </message>
    <message>
        <source>Press 1, 2 or 3 to switch between region, window and full screen.</source>
        <translation>Appuyez sur 1, 2 ou 3 pour passer d’une zone à une fenêtre ou à tout l’écran.</translation>
    </message>
    <message>
        <source>Press C to copy the color under the pointer.</source>
        <translation>Appuyez sur C pour copier la couleur sous le pointeur.</translation>
    </message>
</context>
<context>
    <name>tessaly::PinnedScreenshotController</name>
    <message>
        <source>Clicks now pass through. To unlock, choose Unlock Pinned Screenshots from the Tessaly menu bar icon or the Window menu.</source>
        <translation>Les clics passent maintenant à travers. Pour déverrouiller, choisissez «&#xa0;Déverrouiller les captures épinglées&#xa0;» dans le menu de l’icône de Tessaly de la zone de notification, ou dans le menu Image d’une fenêtre de Tessaly (Ctrl+Alt+U).</translation>
    </message>
</context>
<context>
    <name>tessaly::PinnedScreenshotWindow</name>
    <message>
        <source>Pinned screenshot</source>
        <translation>Capture épinglée</translation>
    </message>
    <message>
        <source>Drag it to move it; turn the wheel for its opacity, and with Ctrl to zoom.</source>
        <translation>Glisser pour la déplacer&#xa0;; tourner la molette pour son opacité, et avec Ctrl pour zoomer.</translation>
    </message>
</context>
<context>
    <name>tessaly::PreferencesPage</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A slider&apos;s name: what it is for, then the format of pictures</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Opening Tessaly at login could not be changed.</source>
        <translation>L’ouverture de Tessaly à l’ouverture de session n’a pas pu être modifiée.</translation>
    </message>
    <message>
        <source>Choose the folder in which captures are saved.</source>
        <translation>Choisissez le dossier où les captures sont enregistrées.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Utiliser ce dossier</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Use the system default folder</source>
        <translation>Utiliser le dossier par défaut du système</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Par défaut du système</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>Each capture is saved on this Mac with its annotations, so you can reopen it from the start window and keep editing. Nothing leaves your Mac.</source>
        <translation>Chaque capture est enregistrée sur cet ordinateur avec ses annotations&#xa0;; vous pouvez la rouvrir depuis la fenêtre de démarrage et continuer à la modifier. Rien ne quitte votre ordinateur.</translation>
    </message>
    <message>
        <source>New captures aren&apos;t added. The ones already in the history stay until you empty it.</source>
        <translation>Les nouvelles captures ne sont pas ajoutées. Celles qui sont déjà dans l’historique y restent jusqu’à ce que vous le vidiez.</translation>
    </message>
    <message>
        <source>Empty History…</source>
        <translation>Vider l’historique…</translation>
    </message>
    <message>
        <source>1 capture in the history will be deleted from this Mac. This can&apos;t be undone.</source>
        <translation>1 capture de l’historique sera supprimée de cet ordinateur. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>%1 captures in the history will be deleted from this Mac. This can&apos;t be undone.</source>
        <translation>%1 captures de l’historique seront supprimées de cet ordinateur. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Empty the history?</source>
        <translation>Vider l’historique&#xa0;?</translation>
    </message>
    <message>
        <source>Emptying the history doesn&apos;t touch the images and documents you saved yourself.</source>
        <translation>Vider l’historique ne touche pas aux images et documents que vous avez enregistrés vous-même.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Empty History</source>
        <translation>Vider l’historique</translation>
    </message>
</context>
<context>
    <name>tessaly::PreferencesWindow</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>tessaly::Presence</name>
    <message>
        <source>This desktop has no tray. When this window is closed, start Tessaly again to see it; Ctrl+Q quits it.</source>
        <translation>Ce bureau n’a pas de zone de notification. Une fois cette fenêtre fermée, démarrez Tessaly de nouveau pour la voir&#xa0;; Ctrl+Q le quitte.</translation>
    </message>
    <message>
        <source>This desktop has no tray. When this window is closed, press %1 to capture, or start Tessaly again to see it; Ctrl+Q quits it.</source>
        <translation>Ce bureau n’a pas de zone de notification. Une fois cette fenêtre fermée, appuyez sur %1 pour capturer, ou démarrez Tessaly de nouveau pour la voir&#xa0;; Ctrl+Q le quitte.</translation>
    </message>
</context>
<context>
    <name>tessaly::QuickAccessPanel</name>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Screenshot taken</source>
        <translation>Capture d’écran effectuée</translation>
    </message>
</context>
<context>
    <name>tessaly::QuickAccessView</name>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Drag to share</source>
        <translation>Glisser pour partager</translation>
    </message>
</context>
<context>
    <name>tessaly::ResizeDialog</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>%1 in pixels</source>
        <translation>%1 en pixels</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>Resize Image</source>
        <translation>Redimensionner l’image</translation>
    </message>
    <message>
        <source>Width and height keep their ratio</source>
        <translation>La largeur et la hauteur gardent leur rapport</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 % of the present size</source>
        <translation>%1&#xa0;% de la taille actuelle</translation>
    </message>
    <message>
        <source>Now %1 × %2 pixels</source>
        <translation>Actuellement %1 × %2 pixels</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Resize the picture (Return)</source>
        <translation>Redimensionner l’image (Entrée)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Annuler (Échap)</translation>
    </message>
</context>
<context>
    <name>tessaly::SaveButton</name>
    <message>
        <source>Save format</source>
        <translation>Format d’enregistrement</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>tessaly::SearchField</name>
    <message>
        <source>Search Captures</source>
        <translation>Rechercher des captures</translation>
    </message>
    <message>
        <source>Find captures by title, date and the text in them (Ctrl+F)</source>
        <translation>Trouver des captures par titre, date et texte contenu (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Clear (Esc)</source>
        <translation>Effacer (Échap)</translation>
    </message>
</context>
<context>
    <name>tessaly::SharpenDialog</name>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>Sharpen Image</source>
        <translation>Renforcer la netteté de l’image</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>How strongly edges are sharpened</source>
        <translation>Intensité du renforcement des contours</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Sharpen the picture (Return)</source>
        <translation>Renforcer la netteté de l’image (Entrée)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Annuler (Échap)</translation>
    </message>
</context>
<context>
    <name>tessaly::ShortcutsSheet</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Press a letter on the canvas to switch tools. The ⌥⌘ shortcuts in the Tools menu still work.</source>
        <translation>Appuyez sur une lettre dans le canevas pour changer d’outil. Les raccourcis Ctrl+Alt du menu Outils fonctionnent toujours.</translation>
    </message>
</context>
<context>
    <name>tessaly::ShortcutsTab</name>
    <message>
        <source>Your desktop decides which keys these become. They can be changed in its own settings.</source>
        <translation>C’est votre bureau qui décide de ces touches. Elles peuvent être modifiées dans ses propres paramètres.</translation>
    </message>
    <message>
        <source>Click the shortcut and press a new key combination (must include a modifier).</source>
        <translation>Cliquez sur le raccourci et appuyez sur une nouvelle combinaison de touches (avec au moins un modificateur).</translation>
    </message>
    <message>
        <source>Region and Window open a bar at the bottom of the screen to switch between region, window and full screen, so one shortcut is enough.</source>
        <translation>«&#xa0;Zone&#xa0;» et «&#xa0;Fenêtre&#xa0;» ouvrent en bas de l’écran une barre pour passer de l’un à l’autre ou à tout l’écran&#xa0;: un seul raccourci suffit.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Revenir à %1</translation>
    </message>
    <message>
        <source>Reset the shortcut of %1</source>
        <translation>Réinitialiser le raccourci de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>This desktop does not let programs listen for shortcuts. Its own keyboard settings can start a capture: add a shortcut there for each of these commands that you want.</source>
        <translation>Ce bureau ne permet pas aux programmes d’écouter les raccourcis. Ses propres paramètres de clavier peuvent lancer une capture&#xa0;: ajoutez-y un raccourci pour chacune des commandes voulues.</translation>
    </message>
    <message>
        <source>Command for %1: %2</source>
        <translation>Commande pour %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the command to the clipboard</source>
        <translation>Copier la commande dans le presse-papiers</translation>
    </message>
    <message>
        <source>Copy the command for %1</source>
        <translation>Copier la commande pour %1</translation>
    </message>
</context>
<context>
    <name>tessaly::StartActions</name>
    <message>
        <source>Capture Region</source>
        <translation>Capturer une zone</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Capturer une fenêtre</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tout l’écran</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Open a picture or a document (Ctrl+O)</source>
        <translation>Ouvrir une image ou un document (Ctrl+O)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Open the picture on the clipboard (Ctrl+V)</source>
        <translation>Ouvrir l’image du presse-papiers (Ctrl+V)</translation>
    </message>
    <message>
        <source>There is no picture on the clipboard</source>
        <translation>Le presse-papiers ne contient pas d’image</translation>
    </message>
</context>
<context>
    <name>tessaly::StartFooter</name>
    <message>
        <source>Private</source>
        <translation>Privé</translation>
    </message>
    <message>
        <source>History Settings…</source>
        <translation>Paramètres de l’historique…</translation>
    </message>
    <message>
        <source>How long captures are kept, and whether any are</source>
        <translation>Si les captures sont conservées, et combien de temps</translation>
    </message>
</context>
<context>
    <name>tessaly::StartView</name>
    <message>
        <source>Recent Captures</source>
        <translation>Captures récentes</translation>
    </message>
    <message>
        <source>No Recent Captures</source>
        <translation>Aucune capture récente</translation>
    </message>
    <message>
        <source>Start a New Capture</source>
        <translation>Commencer une nouvelle capture</translation>
    </message>
    <message>
        <source>Capture, mark up and share. Your recent captures will appear here.</source>
        <translation>Capturer, annoter et partager. Vos captures récentes apparaîtront ici.</translation>
    </message>
    <message>
        <source>Capture, mark up and share.</source>
        <translation>Capturer, annoter et partager.</translation>
    </message>
    <message>
        <source>There are no captures in the history yet.</source>
        <translation>Il n’y a pas encore de captures dans l’historique.</translation>
    </message>
    <message>
        <source>1 capture</source>
        <translation>1 capture</translation>
    </message>
    <message>
        <source>%1 captures</source>
        <translation>%1 captures</translation>
    </message>
    <message>
        <source>No Matches</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>No capture contains “%1”.</source>
        <translation>Aucune capture ne contient «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The file manager could not be opened.</source>
        <translation>Le gestionnaire de fichiers n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
</context>
<context>
    <name>tessaly::StartWindow</name>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
</context>
<context>
    <name>tessaly::StyleMenu</name>
    <message>
        <source>Style %1</source>
        <translation>Style %1</translation>
    </message>
    <message>
        <source>Save Style</source>
        <translation>Enregistrer le style</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>Renommer le style</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>	Alt+%1</source>
        <translation>	Alt+%1</translation>
    </message>
    <message>
        <source>No saved styles</source>
        <translation>Aucun style enregistré</translation>
    </message>
    <message>
        <source>Save Style…</source>
        <translation>Enregistrer le style…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Restore Default Styles</source>
        <translation>Rétablir les styles par défaut</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Styles</translation>
    </message>
    <message>
        <source>Saved styles</source>
        <translation>Styles enregistrés</translation>
    </message>
    <message>
        <source>Saved styles (Alt+1 to Alt+9)</source>
        <translation>Styles enregistrés (Alt+1 à Alt+9)</translation>
    </message>
</context>
<context>
    <name>tessaly::SystemScreenshotWatcher</name>
    <message>
        <source>Choose the folder where macOS saves screenshots (usually the Desktop).</source>
        <translation>Choisissez le dossier où votre bureau enregistre les captures d’écran (généralement «&#xa0;Captures d’écran&#xa0;» dans «&#xa0;Images&#xa0;»).</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Utiliser ce dossier</translation>
    </message>
</context>
<context>
    <name>tessaly::TextCopier</name>
    <message>
        <source>Recognizing text…</source>
        <translation>Reconnaissance du texte…</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Aucun texte trouvé</translation>
    </message>
    <message>
        <source>Text copied to clipboard</source>
        <translation>Texte copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>Code content copied to clipboard</source>
        <translation>Contenu du code copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>QR code link copied</source>
        <translation>Lien du code QR copié</translation>
    </message>
</context>
<context>
    <name>tessaly::ToolBarDialog</name>
    <message>
        <source>Customize Toolbar</source>
        <translation>Personnaliser la barre d’outils</translation>
    </message>
    <message>
        <source>Show in the toolbar:</source>
        <translation>Afficher dans la barre d’outils&#xa0;:</translation>
    </message>
    <message>
        <source>Show “%1” in the toolbar</source>
        <translation>Afficher «&#xa0;%1&#xa0;» dans la barre d’outils</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Done (Return)</source>
        <translation>Terminé (Entrée)</translation>
    </message>
</context>
<context>
    <name>tessaly::ToolSidebar</name>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
</context>
<context>
    <name>tessaly::TrayPresence</name>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
</context>
<context>
    <name>tessaly::ValueSlider</name>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
</context>
<context>
    <name>tessaly::WelcomeGuide</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Bienvenue dans Tessaly</translation>
    </message>
    <message>
        <source>Take a picture of the screen, mark it up, and hand it on.</source>
        <translation>Prenez une image de l’écran, annotez-la et transmettez-la.</translation>
    </message>
    <message>
        <source>Capture a region</source>
        <translation>Capturer une zone</translation>
    </message>
    <message>
        <source>Choose Capture Region, then drag over what you want. This desktop gives programs no keys of their own; its keyboard settings can run “tessaly capture region” for you.</source>
        <translation>Choisissez «&#xa0;Capturer une zone&#xa0;», puis faites glisser sur ce que vous voulez. Ce bureau ne donne pas de touches aux programmes&#xa0;; ses paramètres de clavier peuvent exécuter «&#xa0;tessaly capture region&#xa0;».</translation>
    </message>
    <message>
        <source>Press these keys now, or whenever something is worth keeping, then drag over it. Esc cancels.</source>
        <translation>Appuyez sur ces touches maintenant, ou dès que quelque chose mérite d’être gardé, puis faites glisser dessus. Échap annule.</translation>
    </message>
    <message>
        <source>Mark it up</source>
        <translation>L’annoter</translation>
    </message>
    <message>
        <source>Point with arrows, write, number the steps, cover what nobody should read. Then copy it, save it, drag it into another program or pin it to the screen.</source>
        <translation>Pointez avec des flèches, écrivez, numérotez les étapes, couvrez ce que personne ne doit lire. Puis copiez-la, enregistrez-la, glissez-la dans un autre programme ou épinglez-la à l’écran.</translation>
    </message>
    <message>
        <source>Find it in the tray</source>
        <translation>Le trouver dans la zone de notification</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray: click it to open Tessaly, right-click it for everything else.</source>
        <translation>Tessaly attend sous forme d’icône dans la zone de notification&#xa0;: un clic ouvre Tessaly, un clic droit tout le reste.</translation>
    </message>
    <message>
        <source>Find it again</source>
        <translation>La retrouver</translation>
    </message>
    <message>
        <source>This desktop shows no tray. Start Tessaly again to see your recent captures; Ctrl+Q in any of its windows quits.</source>
        <translation>Ce bureau n’a pas de zone de notification. Démarrez Tessaly de nouveau pour voir vos captures récentes&#xa0;; Ctrl+Q dans l’une de ses fenêtres le quitte.</translation>
    </message>
    <message>
        <source>Yours alone</source>
        <translation>À vous seul</translation>
    </message>
    <message>
        <source>Captures are kept only on this computer. Tessaly opens no network connection.</source>
        <translation>Les captures ne sont conservées que sur cet ordinateur. Tessaly n’ouvre aucune connexion réseau.</translation>
    </message>
    <message>
        <source>Show welcome on launch</source>
        <translation>Afficher le guide de bienvenue au démarrage</translation>
    </message>
    <message>
        <source>Show this guide the next time that Tessaly starts</source>
        <translation>Afficher ce guide au prochain démarrage de Tessaly</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Fermer (Échap)</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Capturer une zone</translation>
    </message>
    <message>
        <source>Close this guide and take a region (Return)</source>
        <translation>Fermer ce guide et capturer une zone (Entrée)</translation>
    </message>
</context>
<context>
    <name>tessaly::WhatsNewSheet</name>
    <message>
        <source>What’s New</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>What’s New in Tessaly</source>
        <translation>Nouveautés de Tessaly</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Close (Return)</source>
        <translation>Fermer (Entrée)</translation>
    </message>
</context>
</TS>

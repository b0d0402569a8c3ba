<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Annotation</name>
    <message>
        <source>The mark has no “%1”.</source>
        <translation>Die Anmerkung hat kein „%1“.</translation>
    </message>
    <message>
        <source>The mark&apos;s “%1” cannot be %2.</source>
        <translation>„%1“ der Anmerkung kann nicht %2 sein.</translation>
    </message>
</context>
<context>
    <name>AnnotationDocument</name>
    <message>
        <source>There are %1 marks; a document holds at most %2.</source>
        <translation>Es sind %1 Anmerkungen; ein Dokument fasst höchstens %2.</translation>
    </message>
    <message>
        <source>The JSON text is longer than %1 MiB.</source>
        <translation>Der JSON-Text ist länger als %1 MiB.</translation>
    </message>
    <message>
        <source>The JSON text holds more than %1 values.</source>
        <translation>Der JSON-Text enthält mehr als %1 Werte.</translation>
    </message>
    <message>
        <source>The text is not JSON: %1 at byte %2.</source>
        <translation>Der Text ist kein JSON: %1 bei Byte %2.</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>“%1” is not a text.</source>
        <translation>„%1“ ist kein Text.</translation>
    </message>
    <message>
        <source>“%1” is not a pair of numbers.</source>
        <translation>„%1“ ist kein Zahlenpaar.</translation>
    </message>
    <message>
        <source>“%1” is not an object.</source>
        <translation>„%1“ ist kein Objekt.</translation>
    </message>
    <message>
        <source>The mark is not an object.</source>
        <translation>Die Anmerkung ist kein Objekt.</translation>
    </message>
    <message>
        <source>“annotations” is not a list.</source>
        <translation>„annotations“ ist keine Liste.</translation>
    </message>
    <message>
        <source>Mark %1: %2</source>
        <translation>Anmerkung %1: %2</translation>
    </message>
    <message>
        <source>“canvasSize” is missing.</source>
        <translation>„canvasSize“ fehlt.</translation>
    </message>
    <message>
        <source>“%1” has a number that is not finite.</source>
        <translation>„%1“ enthält eine Zahl, die nicht endlich ist.</translation>
    </message>
    <message>
        <source>The “%1” of mark %2 has a number that is not finite.</source>
        <translation>„%1“ der Anmerkung %2 enthält eine Zahl, die nicht endlich ist.</translation>
    </message>
    <message>
        <source>The JSON text is a list, not a document.</source>
        <translation>Der JSON-Text ist eine Liste und kein Dokument.</translation>
    </message>
    <message>
        <source>There is no frame in it.</source>
        <translation>Es ist kein Rahmen darin.</translation>
    </message>
    <message>
        <source>There is no watermark in it.</source>
        <translation>Es ist kein Wasserzeichen darin.</translation>
    </message>
</context>
<context>
    <name>AnnotationStore</name>
    <message>
        <source>Couldn&apos;t crop the selected region.</source>
        <translation>Der ausgewählte Bereich konnte nicht zugeschnitten werden.</translation>
    </message>
</context>
<context>
    <name>AutomationClient</name>
    <message>
        <source>The running Tessaly ended before the capture was done.</source>
        <translation>Das laufende Tessaly wurde beendet, bevor die Aufnahme fertig war.</translation>
    </message>
    <message>
        <source>The session bus ended before the capture was done.</source>
        <translation>Der Sitzungsbus wurde beendet, bevor die Aufnahme fertig war.</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The file %1 starts another program and was left as it is.</source>
        <translation>Die Datei %1 startet ein anderes Programm und wurde nicht verändert.</translation>
    </message>
    <message>
        <source>The file %1 could not be removed: %2.</source>
        <translation>Die Datei %1 konnte nicht entfernt werden: %2.</translation>
    </message>
</context>
<context>
    <name>BmpEncoder</name>
    <message>
        <source>A BMP file can hold 2 GiB of pixels, and this picture has more.</source>
        <translation>Eine BMP-Datei fasst 2 GiB an Pixeln, und dieses Bild hat mehr.</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Screenshot, %d by %d pixels</source>
        <translation>Bildschirmfoto, %d mal %d Pixel</translation>
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
        <translation>Das abgelegte Bild</translation>
    </message>
</context>
<context>
    <name>CaptureDelays</name>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 Sekunden</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 Sekunden</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 Sekunden</translation>
    </message>
</context>
<context>
    <name>CaptureEngine</name>
    <message>
        <source>No display was found.</source>
        <translation>Es wurde kein Bildschirm gefunden.</translation>
    </message>
    <message>
        <source>No front window was found.</source>
        <translation>Es wurde kein vorderstes Fenster gefunden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t crop the selected region.</source>
        <translation>Der ausgewählte Bereich konnte nicht zugeschnitten werden.</translation>
    </message>
    <message>
        <source>There is no window %1 on the screen; tessaly windows lists those that are there.</source>
        <translation>Auf dem Bildschirm ist kein Fenster %1; „tessaly windows“ listet die vorhandenen auf.</translation>
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
        <translation>Schnellaufnahme</translation>
    </message>
    <message>
        <source>New Collage…</source>
        <translation>Neue Collage…</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Bild öffnen…</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Stacked</source>
        <translation>Untereinander</translation>
    </message>
</context>
<context>
    <name>CaptureService</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Can&apos;t grant the permission? Keep using the macOS shortcut ⇧⌘4 and Tessaly will open each screenshot in the editor, or paste a screenshot with ⇧⌘N.</source>
        <translation>Es geht auch mit der Bildschirmfoto-Taste der Arbeitsumgebung: Tessaly öffnet jedes Bildschirmfoto im Editor. Oder ein Bildschirmfoto mit Strg+Umschalt+N einfügen.</translation>
    </message>
    <message>
        <source>Detail: %1</source>
        <translation>Einzelheit: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t capture the screen</source>
        <translation>Der Bildschirm konnte nicht aufgenommen werden</translation>
    </message>
    <message>
        <source>Use System Screenshots…</source>
        <translation>Bildschirmfotos des Systems verwenden…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>CollageService</name>
    <message>
        <source>And %1 others.</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>Joining images…</source>
        <translation>Bilder werden zusammengefügt…</translation>
    </message>
    <message>
        <source>Some images couldn&apos;t be opened</source>
        <translation>Einige Bilder konnten nicht geöffnet werden</translation>
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
        <translation>Der Speicher reicht nicht aus, um die Farben dieses Bildes zu verringern.</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>%1: %2</source>
        <extracomment>a command and one of the rows of its menu: &quot;Export As: PNG&quot;</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>jetzt nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Order</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>New Blank Canvas</source>
        <translation>Neue leere Arbeitsfläche</translation>
    </message>
    <message>
        <source>New from Clipboard</source>
        <translation>Neu aus der Zwischenablage</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Neuer Tab</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Tab schließen</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>Save as Tessaly Document…</source>
        <translation>Als Tessaly-Dokument speichern…</translation>
    </message>
    <message>
        <source>Export As…</source>
        <translation>Exportieren als…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Teilen…</translation>
    </message>
    <message>
        <source>Copy Text from Image</source>
        <translation>Text aus dem Bild kopieren</translation>
    </message>
    <message>
        <source>Copy Style</source>
        <translation>Stil kopieren</translation>
    </message>
    <message>
        <source>Paste Style</source>
        <translation>Stil einfügen</translation>
    </message>
    <message>
        <source>Save Style</source>
        <translation>Stil speichern</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Bring Forward</source>
        <translation>Eine Ebene nach vorn</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <translation>Eine Ebene nach hinten</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Ganz nach vorn</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Ganz nach hinten</translation>
    </message>
    <message>
        <source>Select Next</source>
        <translation>Nächste auswählen</translation>
    </message>
    <message>
        <source>Select Previous</source>
        <translation>Vorherige auswählen</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Turn On Snapping</source>
        <translation>Einrasten einschalten</translation>
    </message>
    <message>
        <source>Turn Off Snapping</source>
        <translation>Einrasten ausschalten</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Customize Toolbar…</source>
        <translation>Symbolleiste anpassen…</translation>
    </message>
    <message>
        <source>Show Options Bar</source>
        <translation>Optionsleiste einblenden</translation>
    </message>
    <message>
        <source>Hide Options Bar</source>
        <translation>Optionsleiste ausblenden</translation>
    </message>
    <message>
        <source>Show Live Text</source>
        <translation>Live-Text einblenden</translation>
    </message>
    <message>
        <source>Hide Live Text</source>
        <translation>Live-Text ausblenden</translation>
    </message>
    <message>
        <source>Rotate Counterclockwise</source>
        <translation>Gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Resize Image…</source>
        <translation>Bildgröße ändern…</translation>
    </message>
    <message>
        <source>Sharpen…</source>
        <translation>Schärfen…</translation>
    </message>
    <message>
        <source>Crop…</source>
        <translation>Zuschneiden…</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>An den Bildschirm anheften</translation>
    </message>
    <message>
        <source>Unlock Pinned Screenshots</source>
        <translation>Angeheftete Bildschirmfotos entsperren</translation>
    </message>
    <message>
        <source>Close Pinned Screenshots</source>
        <translation>Angeheftete Bildschirmfotos schließen</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Bereich aufnehmen</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Capture Front Window</source>
        <translation>Vorderstes Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Capture Full Screen</source>
        <translation>Ganzen Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Full Screen on…</source>
        <translation>Ganzer Bildschirm auf…</translation>
    </message>
    <message>
        <source>Recapture Last Region</source>
        <translation>Letzten Bereich erneut aufnehmen</translation>
    </message>
    <message>
        <source>Copy Text from Region</source>
        <translation>Text aus einem Bereich kopieren</translation>
    </message>
    <message>
        <source>Region to Clipboard</source>
        <translation>Bereich in die Zwischenablage</translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation>Schnellaufnahme</translation>
    </message>
    <message>
        <source>Region to File</source>
        <translation>Bereich in eine Datei</translation>
    </message>
    <message>
        <source>Full Screen to Clipboard</source>
        <translation>Ganzer Bildschirm in die Zwischenablage</translation>
    </message>
    <message>
        <source>Full Screen to File</source>
        <translation>Ganzer Bildschirm in eine Datei</translation>
    </message>
    <message>
        <source>New Collage — Side by side</source>
        <translation>Neue Collage – nebeneinander</translation>
    </message>
    <message>
        <source>New Collage — Stacked</source>
        <translation>Neue Collage – untereinander</translation>
    </message>
    <message>
        <source>Start Window</source>
        <translation>Startfenster</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Quit Tessaly</source>
        <translation>Tessaly beenden</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>Command Palette…</source>
        <translation>Befehlspalette…</translation>
    </message>
    <message>
        <source>About Tessaly</source>
        <translation>Über Tessaly</translation>
    </message>
    <message>
        <source>Tessaly Help</source>
        <translation>Tessaly-Hilfe</translation>
    </message>
    <message>
        <source>What’s New in Tessaly</source>
        <translation>Neues in Tessaly</translation>
    </message>
    <message>
        <source>Welcome Guide</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Tessaly öffnen</translation>
    </message>
    <message>
        <source>Open Last Capture</source>
        <translation>Letzte Aufnahme öffnen</translation>
    </message>
    <message>
        <source>Capture Timer</source>
        <translation>Aufnahmeverzögerung</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Menü leeren</translation>
    </message>
</context>
<context>
    <name>DocumentActions</name>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the document</source>
        <translation>Das Dokument konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the Tessaly document next to the image</source>
        <translation>Das Tessaly-Dokument konnte nicht neben dem Bild gespeichert werden</translation>
    </message>
    <message>
        <source>Preparing the image…</source>
        <translation>Bild wird vorbereitet…</translation>
    </message>
    <message>
        <source>Saving the document…</source>
        <translation>Dokument wird gespeichert…</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>Der Speicher reicht dafür nicht aus.</translation>
    </message>
</context>
<context>
    <name>DocumentFileDialog</name>
    <message>
        <source>Images and Tessaly documents</source>
        <translation>Bilder und Tessaly-Dokumente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save Document</source>
        <translation>Dokument speichern</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>DragFile</name>
    <message>
        <source>The folder %1 could not be made.</source>
        <translation>Der Ordner %1 konnte nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>DroppedContent</name>
    <message>
        <source>Tessaly fetches nothing from the network. Save the picture first, and drop its file.</source>
        <translation>Tessaly holt nichts aus dem Netzwerk. Das Bild zuerst speichern und dann seine Datei ablegen.</translation>
    </message>
</context>
<context>
    <name>EntryCommands</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Delete from History</source>
        <translation>Aus dem Verlauf löschen</translation>
    </message>
</context>
<context>
    <name>EntryTexts</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Captures are kept only on this Mac, until you delete them.</source>
        <translation>Aufnahmen werden nur auf diesem Computer aufbewahrt, bis sie gelöscht werden.</translation>
    </message>
    <message>
        <source>Captures are kept only on this Mac, for %1 days.</source>
        <translation>Aufnahmen werden nur auf diesem Computer aufbewahrt, %1 Tage lang.</translation>
    </message>
</context>
<context>
    <name>Errand</name>
    <message>
        <source>The capture was cancelled.</source>
        <translation>Die Aufnahme wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The path could not be printed.</source>
        <translation>Der Pfad konnte nicht ausgegeben werden.</translation>
    </message>
</context>
<context>
    <name>ExportService</name>
    <message>
        <source>Encoding the image…</source>
        <translation>Bild wird codiert…</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>Der Speicher reicht dafür nicht aus.</translation>
    </message>
    <message>
        <source>Saving the image…</source>
        <translation>Bild wird gespeichert…</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the image</source>
        <translation>Das Bild konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Couldn&apos;t share the image</source>
        <translation>Das Bild konnte nicht geteilt werden</translation>
    </message>
</context>
<context>
    <name>FileKinds</name>
    <message>
        <source>Tessaly document</source>
        <translation>Tessaly-Dokument</translation>
    </message>
</context>
<context>
    <name>FlattenService</name>
    <message>
        <source>Couldn&apos;t prepare the image</source>
        <translation>Das Bild konnte nicht vorbereitet werden</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be rendered with its annotations, so nothing was exported. Your work is still open — try again, or crop the image to make it smaller.</source>
        <translation>Das Bild konnte nicht mit seinen Anmerkungen gezeichnet werden, daher wurde nichts exportiert. Die Arbeit ist noch geöffnet: Erneut versuchen oder das Bild durch Zuschneiden verkleinern.</translation>
    </message>
</context>
<context>
    <name>FrameSettings</name>
    <message>
        <source>Couldn&apos;t use this image as a watermark</source>
        <translation>Dieses Bild kann nicht als Wasserzeichen verwendet werden</translation>
    </message>
</context>
<context>
    <name>FrameStyle</name>
    <message>
        <source>The frame&apos;s “%1” cannot be %2.</source>
        <translation>„%1“ des Rahmens kann nicht %2 sein.</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Ozean</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphit</translation>
    </message>
    <message>
        <source>Mist</source>
        <translation>Nebel</translation>
    </message>
</context>
<context>
    <name>GifEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as GIF.</source>
        <translation>Der Speicher reicht nicht aus, um dieses Bild als GIF zu schreiben.</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Take a capture</source>
        <translation>Eine Aufnahme machen</translation>
    </message>
    <message>
        <source>Press Ctrl+Alt+4 and drag over a region; Ctrl+Alt+5 takes a window, Ctrl+Alt+3 the whole screen. The settings record other keys, where the desktop lets programs have keys of their own.
While you select: Space moves the selection, Esc cancels. The bar on the screen changes between region, window and screen.
A timer, in the settings and in the menu of the tray, waits some seconds, so that you can open a menu first.</source>
        <translation>Strg+Alt+4 drücken und über einen Bereich ziehen; Strg+Alt+5 nimmt ein Fenster auf, Strg+Alt+3 den ganzen Bildschirm. In den Einstellungen lassen sich andere Tasten festlegen, wo die Arbeitsumgebung Programmen eigene Tasten gibt.
Beim Auswählen: Die Leertaste verschiebt die Auswahl, Esc bricht ab. Die Leiste auf dem Bildschirm wechselt zwischen Bereich, Fenster und Bildschirm.
Eine Verzögerung, in den Einstellungen und im Menü des Infobereichs, wartet einige Sekunden, um vorher ein Menü öffnen zu können.</translation>
    </message>
    <message>
        <source>Mark it up</source>
        <translation>Anmerkungen machen</translation>
    </message>
    <message>
        <source>A letter chooses a tool: A for arrows, T for texts, B to pixelate. Drag on the picture to draw, click a mark to change it.
Everything can be undone with Ctrl+Z, and marks stay movable as long as the capture is kept as a Tessaly document.
Pixelated, blurred and covered parts are gone from every picture that leaves Tessaly.</source>
        <translation>Ein Buchstabe wählt ein Werkzeug: A für Pfeile, T für Texte, B zum Verpixeln. Zum Zeichnen auf dem Bild ziehen, zum Ändern eine Anmerkung anklicken.
Alles lässt sich mit Strg+Z rückgängig machen, und Anmerkungen bleiben beweglich, solange die Aufnahme als Tessaly-Dokument aufbewahrt wird.
Verpixelte, weichgezeichnete und verdeckte Teile sind aus jedem Bild verschwunden, das Tessaly verlässt.</translation>
    </message>
    <message>
        <source>Hand it on</source>
        <translation>Weitergeben</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C copies the picture, Ctrl+S saves it, and the handle in the tool bar drags it into another program.
Pin to Screen keeps it above all other windows.</source>
        <translation>Strg+Umschalt+C kopiert das Bild, Strg+S speichert es, und mit dem Griff in der Symbolleiste lässt es sich in ein anderes Programm ziehen.
„An den Bildschirm anheften“ hält es über allen anderen Fenstern.</translation>
    </message>
    <message>
        <source>Find it again</source>
        <translation>Wiederfinden</translation>
    </message>
    <message>
        <source>The start window shows your recent captures; type to search the texts in them. Delete removes one, and can be undone for ten seconds.
Captures are kept only on this computer, for as long as the settings say.</source>
        <translation>Das Startfenster zeigt die letzten Aufnahmen; Tippen durchsucht die Texte darin. Entf löscht eine und lässt sich zehn Sekunden lang rückgängig machen.
Aufnahmen werden nur auf diesem Computer aufbewahrt, so lange, wie es die Einstellungen sagen.</translation>
    </message>
    <message>
        <source>Where Tessaly is</source>
        <translation>Wo Tessaly ist</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray. On a desktop without a tray, start it again to see the start window. Ctrl+Q quits it.
Ctrl+Shift+P finds any command, setting and tool by its name.</source>
        <translation>Tessaly wartet als Symbol im Infobereich. In einer Arbeitsumgebung ohne Infobereich zeigt ein erneuter Start das Startfenster. Strg+Q beendet es.
Strg+Umschalt+P findet jeden Befehl, jede Einstellung und jedes Werkzeug beim Namen.</translation>
    </message>
    <message>
        <source>From scripts</source>
        <translation>Aus Skripten</translation>
    </message>
    <message>
        <source>The command tessaly does most of this without a window: tessaly --help lists what it can.</source>
        <translation>Der Befehl „tessaly“ kann das meiste davon ohne Fenster: „tessaly --help“ listet auf, was er kann.</translation>
    </message>
    <message>
        <source>Tools and their letters</source>
        <translation>Werkzeuge und ihre Buchstaben</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message>
        <source>Tessaly Help</source>
        <translation>Tessaly-Hilfe</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>%1 could not be deleted: %2.</source>
        <translation>%1 konnte nicht gelöscht werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2.</source>
        <translation>%1 konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>A capture without identifier or date cannot be kept.</source>
        <translation>Eine Aufnahme ohne Kennung oder Datum kann nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>%1 cannot be understood.</source>
        <translation>%1 ist nicht verständlich.</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
</context>
<context>
    <name>HistoryEntry</name>
    <message>
        <source>The index of the history cannot be used: %1.</source>
        <translation>Das Verzeichnis des Verlaufs ist nicht verwendbar: %1.</translation>
    </message>
    <message>
        <source>The “%1” of the capture cannot be read.</source>
        <translation>„%1“ der Aufnahme ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The capture has no “%1”.</source>
        <translation>Die Aufnahme hat kein „%1“.</translation>
    </message>
    <message>
        <source>it has no version or no entries</source>
        <translation>es fehlt die Version oder die Einträge</translation>
    </message>
    <message>
        <source>it is of version %1</source>
        <translation>es hat die Version %1</translation>
    </message>
</context>
<context>
    <name>HistoryPruning</name>
    <message>
        <source>1 week</source>
        <translation>1 Woche</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 Monat</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 Monate</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 Jahr</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Für immer</translation>
    </message>
</context>
<context>
    <name>ImageEncoder</name>
    <message>
        <source>There is no picture to write.</source>
        <translation>Es gibt kein Bild zu schreiben.</translation>
    </message>
    <message>
        <source>A %1 picture can be at most %2 pixels wide and high, and this one has %3 × %4.</source>
        <translation>Ein %1-Bild kann höchstens %2 Pixel breit und hoch sein, und dieses hat %3 × %4.</translation>
    </message>
    <message>
        <source>There is not enough memory to write this picture.</source>
        <translation>Der Speicher reicht nicht aus, um dieses Bild zu schreiben.</translation>
    </message>
</context>
<context>
    <name>ImageReading</name>
    <message>
        <source>%1 is damaged or incomplete.</source>
        <translation>%1 ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>%1 is not a picture of a format that can be read.</source>
        <translation>%1 ist kein Bild in einem lesbaren Format.</translation>
    </message>
    <message>
        <source>%1 has %2 × %3 pixels, more than the %4 million that are allowed.</source>
        <translation>%1 hat %2 × %3 Pixel, mehr als die erlaubten %4 Millionen.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2.</source>
        <translation>%1 konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is a folder and not a picture.</source>
        <translation>%1 ist ein Ordner und kein Bild.</translation>
    </message>
    <message>
        <source>%1 is not a file that holds a picture.</source>
        <translation>%1 ist keine Datei, die ein Bild enthält.</translation>
    </message>
    <message>
        <source>%1 is too large for a picture.</source>
        <translation>%1 ist zu groß für ein Bild.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>Resizing…</source>
        <translation>Größe wird geändert…</translation>
    </message>
    <message>
        <source>Sharpening…</source>
        <translation>Wird geschärft…</translation>
    </message>
    <message>
        <source>Cropping…</source>
        <translation>Wird zugeschnitten…</translation>
    </message>
    <message>
        <source>Rotating…</source>
        <translation>Wird gedreht…</translation>
    </message>
    <message>
        <source>Flipping…</source>
        <translation>Wird gespiegelt…</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the image</source>
        <translation>Das Bild konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for the new picture. Your work is unchanged.</source>
        <translation>Der Speicher reicht für das neue Bild nicht aus. Die Arbeit ist unverändert.</translation>
    </message>
</context>
<context>
    <name>Intents</name>
    <message>
        <source>Open in Editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>In eine Datei speichern</translation>
    </message>
    <message>
        <source>Capture a region with</source>
        <translation>Einen Bereich aufnehmen und</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Bereich aufnehmen</translation>
    </message>
    <message>
        <source>Capture a window with</source>
        <translation>Ein Fenster aufnehmen und</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Capture the screen with</source>
        <translation>Den Bildschirm aufnehmen und</translation>
    </message>
    <message>
        <source>Capture Full Screen</source>
        <translation>Ganzen Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Copy text with</source>
        <translation>Text kopieren mit</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Text kopieren</translation>
    </message>
    <message>
        <source>Open the last capture in</source>
        <translation>Die letzte Aufnahme öffnen in</translation>
    </message>
    <message>
        <source>Open Last Capture</source>
        <translation>Letzte Aufnahme öffnen</translation>
    </message>
    <message>
        <source>%1 takes no destination.</source>
        <translation>%1 hat kein Ziel.</translation>
    </message>
    <message>
        <source>There is no destination &quot;%1&quot;; it is one of editor, clipboard and file.</source>
        <translation>Es gibt kein Ziel „%1“; möglich sind editor, clipboard und file.</translation>
    </message>
    <message>
        <source>There are no captures in the history yet.</source>
        <translation>Im Verlauf sind noch keine Aufnahmen.</translation>
    </message>
</context>
<context>
    <name>JpegEncoder</name>
    <message>
        <source>The picture could not be written as JPEG: %1.</source>
        <translation>Das Bild konnte nicht als JPEG geschrieben werden: %1.</translation>
    </message>
</context>
<context>
    <name>LoupeView</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>MarkClipboard</name>
    <message>
        <source>What was copied is damaged and can&apos;t be pasted.</source>
        <translation>Das Kopierte ist beschädigt und kann nicht eingefügt werden.</translation>
    </message>
    <message>
        <source>The copied picture</source>
        <translation>Das kopierte Bild</translation>
    </message>
    <message>
        <source>There is nothing on the clipboard that can be pasted here.</source>
        <translation>In der Zwischenablage ist nichts, was hier eingefügt werden kann.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read: %2</source>
        <translation>„%1“ ist nicht lesbar: %2</translation>
    </message>
</context>
<context>
    <name>MarkLimits</name>
    <message>
        <source>its %1 lies at (%2, %3)</source>
        <translation>%1 liegt bei (%2, %3)</translation>
    </message>
    <message>
        <source>its %1 has %2 elements</source>
        <translation>%1 hat %2 Elemente</translation>
    </message>
    <message>
        <source>its %1 is %2</source>
        <translation>%1 ist %2</translation>
    </message>
    <message>
        <source>its tailAngle is not a number</source>
        <translation>tailAngle ist keine Zahl</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Textmarker</translation>
    </message>
    <message>
        <source>Obscured area</source>
        <translation>Unkenntlicher Bereich</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Pen stroke</source>
        <translation>Stiftstrich</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Lichtkegel</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <extracomment>A mark&apos;s kind and the text in it</extracomment>
        <translation>%1 „%2“</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>A&amp;ufnahme</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Infobereich</translation>
    </message>
</context>
<context>
    <name>MissingScreenSource</name>
    <message>
        <source>Start Tessaly from within the desktop that is to be captured, without TESSALY_PLATFORM in its environment.</source>
        <translation>Tessaly in der Arbeitsumgebung starten, die aufgenommen werden soll, ohne TESSALY_PLATFORM in seiner Umgebung.</translation>
    </message>
</context>
<context>
    <name>MissingWindowSource</name>
    <message>
        <source>This desktop does not tell where its windows are.</source>
        <translation>Diese Arbeitsumgebung verrät nicht, wo ihre Fenster sind.</translation>
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
        <translation>Tasten, die überall gelten</translation>
    </message>
    <message>
        <source>Take a region, a window or the whole screen while you work in another program. The settings record other combinations.</source>
        <translation>Einen Bereich, ein Fenster oder den ganzen Bildschirm aufnehmen, während in einem anderen Programm gearbeitet wird. In den Einstellungen lassen sich andere Kombinationen festlegen.</translation>
    </message>
    <message>
        <source>At home in the tray</source>
        <translation>Im Infobereich zu Hause</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray, with every way to capture, a timer and your pinned screenshots.</source>
        <translation>Tessaly wartet als Symbol im Infobereich, mit allen Arten der Aufnahme, einer Verzögerung und den angehefteten Bildschirmfotos.</translation>
    </message>
    <message>
        <source>Find any command</source>
        <translation>Jeden Befehl finden</translation>
    </message>
    <message>
        <source>Press Ctrl+Shift+P and type: commands, settings and tools are one word away.</source>
        <translation>Strg+Umschalt+P drücken und tippen: Befehle, Einstellungen und Werkzeuge sind ein Wort entfernt.</translation>
    </message>
    <message>
        <source>Still yours alone</source>
        <translation>Weiterhin ganz privat</translation>
    </message>
    <message>
        <source>Captures are kept only on this computer. Tessaly opens no network connection.</source>
        <translation>Aufnahmen werden nur auf diesem Computer aufbewahrt. Tessaly öffnet keine Netzwerkverbindung.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Tapered</source>
        <comment>arrowhead.tapered</comment>
        <extracomment>An arrow whose stroke tapers to a sharp head</extracomment>
        <translation>Verjüngt</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>arrowhead.filled</comment>
        <extracomment>An arrow head that is a solid, filled triangle</extracomment>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>arrowhead.open</comment>
        <extracomment>An arrow head of two open strokes that form a V</extracomment>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Concave</source>
        <comment>arrowhead.concave</comment>
        <extracomment>An arrow head that is a triangle with a concave back edge</extracomment>
        <translation>Konkav</translation>
    </message>
    <message>
        <source>Check</source>
        <comment>Check</comment>
        <translation>Häkchen</translation>
    </message>
    <message>
        <source>Cross</source>
        <comment>Cross</comment>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Exclamation mark</source>
        <comment>stamp.exclamation</comment>
        <translation>Ausrufezeichen</translation>
    </message>
    <message>
        <source>Question mark</source>
        <comment>stamp.question</comment>
        <translation>Fragezeichen</translation>
    </message>
    <message>
        <source>Star</source>
        <comment>Star</comment>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Dot</source>
        <comment>Dot</comment>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Number</source>
        <comment>Number</comment>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <comment>Pixelate</comment>
        <translation>Verpixeln</translation>
    </message>
    <message>
        <source>Blur</source>
        <comment>Blur</comment>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>Solid</source>
        <comment>Solid</comment>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Stripes</source>
        <comment>Stripes</comment>
        <translation>Streifen</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>Free</comment>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Classic</source>
        <comment>style.preset.classic</comment>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Thin Blue</source>
        <comment>style.preset.thinBlue</comment>
        <translation>Schmal, blau</translation>
    </message>
    <message>
        <source>Curved Orange</source>
        <comment>style.preset.curvedOrange</comment>
        <translation>Gebogen, orange</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>style.preset.title</comment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Note</source>
        <comment>style.preset.note</comment>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>On Dark Background</source>
        <comment>style.preset.onDark</comment>
        <translation>Auf dunklem Grund</translation>
    </message>
    <message>
        <source>Pink Frame</source>
        <comment>style.preset.pinkFrame</comment>
        <translation>Rosa Rahmen</translation>
    </message>
    <message>
        <source>Thin Blue Frame</source>
        <comment>style.preset.thinBlueFrame</comment>
        <translation>Schmaler blauer Rahmen</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Lock Ratio</source>
        <translation>Verhältnis fixieren</translation>
    </message>
    <message>
        <source>Keep the present ratio of width to height (Shift while dragging)</source>
        <translation>Das jetzige Verhältnis von Breite zu Höhe beibehalten (Umschalt beim Ziehen)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Leave the picture as it is (Esc)</source>
        <translation>Das Bild lassen, wie es ist (Esc)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Cut the picture to the rectangle (Return)</source>
        <translation>Das Bild auf das Rechteck zuschneiden (Eingabetaste)</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Margin around the picture</source>
        <translation>Rand um das Bild</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>Radius of the picture&apos;s corners</source>
        <translation>Radius der Bildecken</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Shadow that the picture throws</source>
        <translation>Schatten, den das Bild wirft</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Present the screenshot on a background</source>
        <translation>Das Bildschirmfoto auf einem Hintergrund zeigen</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Solid %1</source>
        <translation>Einfarbig %1</translation>
    </message>
    <message>
        <source>Other Color…</source>
        <translation>Andere Farbe…</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Gradient, color or transparency</source>
        <translation>Farbverlauf, Farbe oder Transparenz</translation>
    </message>
    <message>
        <source>Aspect ratio of the framed picture</source>
        <translation>Seitenverhältnis des gerahmten Bildes</translation>
    </message>
    <message>
        <source>Apply to new captures</source>
        <translation>Auf neue Aufnahmen anwenden</translation>
    </message>
    <message>
        <source>New captures open with this frame and watermark. Off by default, so captures stay exactly as taken.</source>
        <translation>Neue Aufnahmen werden mit diesem Rahmen und Wasserzeichen geöffnet. Anfangs ausgeschaltet, damit Aufnahmen genau so bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>A caption beside the stamp</source>
        <translation>Eine Beschriftung neben dem Stempel</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Spitze</translation>
    </message>
    <message>
        <source>A tail that points away from the stamp</source>
        <translation>Eine Spitze, die vom Stempel weg zeigt</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Scheibe</translation>
    </message>
    <message>
        <source>A disc behind the sign</source>
        <translation>Eine Scheibe hinter dem Zeichen</translation>
    </message>
    <message>
        <source>Choose Image…</source>
        <translation>Bild wählen…</translation>
    </message>
    <message>
        <source>Choose a picture to put onto the screenshot</source>
        <translation>Ein Bild wählen, das auf das Bildschirmfoto gelegt wird</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Line width (Alt+wheel over the selected mark)</source>
        <translation>Linienbreite (Alt+Mausrad über der ausgewählten Anmerkung)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Text size (Alt+wheel over the selected mark)</source>
        <translation>Textgröße (Alt+Mausrad über der ausgewählten Anmerkung)</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>How strongly the highlight covers what lies below</source>
        <translation>Wie stark der Textmarker verdeckt, was darunter liegt</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Strength. For passwords, use Solid: it hides everything.</source>
        <translation>Stärke. Für Passwörter „Einfarbig“ verwenden: Es verdeckt alles.</translation>
    </message>
    <message>
        <source>Dimming</source>
        <translation>Abdunklung</translation>
    </message>
    <message>
        <source>How dark it is outside the spotlight</source>
        <translation>Wie dunkel es außerhalb des Lichtkegels ist</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>How much the magnifier enlarges (Alt+wheel over the selected mark)</source>
        <translation>Wie stark die Lupe vergrößert (Alt+Mausrad über der ausgewählten Anmerkung)</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Both Ends</source>
        <translation>Beide Enden</translation>
    </message>
    <message>
        <source>Curved</source>
        <translation>Gebogen</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>System Font</source>
        <translation>Systemschrift</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Hiding</source>
        <translation>Verdeckung</translation>
    </message>
    <message>
        <source>Arrow Head</source>
        <translation>Pfeilspitze</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Tiled over the whole picture</source>
        <translation>Über das ganze Bild gekachelt</translation>
    </message>
    <message>
        <source>Opacity of the watermark</source>
        <translation>Deckkraft des Wasserzeichens</translation>
    </message>
    <message>
        <source>Size of the watermark relative to the picture</source>
        <translation>Größe des Wasserzeichens im Verhältnis zum Bild</translation>
    </message>
    <message>
        <source>Couldn&apos;t use this image as a watermark</source>
        <translation>Dieses Bild kann nicht als Wasserzeichen verwendet werden</translation>
    </message>
    <message>
        <source>Choose an image for your watermark. Tessaly keeps its own copy.</source>
        <translation>Ein Bild für das Wasserzeichen wählen. Tessaly behält eine eigene Kopie.</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Draw a text or a logo over the finished picture</source>
        <translation>Einen Text oder ein Logo über das fertige Bild zeichnen</translation>
    </message>
    <message>
        <source>Kind of watermark</source>
        <translation>Art des Wasserzeichens</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Choose another logo</source>
        <translation>Ein anderes Logo wählen</translation>
    </message>
    <message>
        <source>Your name or notice</source>
        <translation>Name oder Hinweis</translation>
    </message>
    <message>
        <source>The text of the watermark</source>
        <translation>Der Text des Wasserzeichens</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>Text des Wasserzeichens</translation>
    </message>
    <message>
        <source>Nothing is drawn until there is a text.</source>
        <translation>Ohne Text wird nichts gezeichnet.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>A text or a logo over the finished picture</source>
        <translation>Ein Text oder ein Logo über dem fertigen Bild</translation>
    </message>
</context>
<context>
    <name>PendingDeletion</name>
    <message>
        <source>Deleted “%1” from the history.</source>
        <translation>„%1“ wurde aus dem Verlauf gelöscht.</translation>
    </message>
    <message>
        <source>Deleted %1 captures from the history.</source>
        <translation>%1 Aufnahmen wurden aus dem Verlauf gelöscht.</translation>
    </message>
</context>
<context>
    <name>PictureTitle</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>PinnedScreenshot</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Let Clicks Pass Through</source>
        <translation>Klicks durchlassen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>On this desktop other windows can cover it</source>
        <translation>In dieser Arbeitsumgebung können andere Fenster es verdecken</translation>
    </message>
</context>
<context>
    <name>PlatformChoice</name>
    <message>
        <source>TESSALY_PLATFORM=none switches capturing off.</source>
        <translation>TESSALY_PLATFORM=none schaltet das Aufnehmen ab.</translation>
    </message>
    <message>
        <source>TESSALY_PLATFORM names no platform to capture from: %1.</source>
        <translation>TESSALY_PLATFORM nennt keine Plattform, von der aufgenommen werden kann: %1.</translation>
    </message>
    <message>
        <source>There is no desktop to capture: neither WAYLAND_DISPLAY nor DISPLAY is set.</source>
        <translation>Es gibt keine Arbeitsumgebung zum Aufnehmen: Weder WAYLAND_DISPLAY noch DISPLAY ist gesetzt.</translation>
    </message>
</context>
<context>
    <name>PortalScreenSource</name>
    <message>
        <source>“%1” is no file of this computer.</source>
        <translation>„%1“ ist keine Datei dieses Computers.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>It does not show the whole of the screen.</source>
        <translation>Es zeigt nicht den ganzen Bildschirm.</translation>
    </message>
    <message>
        <source>The screenshot was cancelled.</source>
        <translation>Das Bildschirmfoto wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The desktop does not allow Tessaly to take screenshots.</source>
        <translation>Die Arbeitsumgebung erlaubt Tessaly keine Bildschirmfotos.</translation>
    </message>
    <message>
        <source>This desktop has no portal that takes screenshots.</source>
        <translation>Diese Arbeitsumgebung hat kein Portal, das Bildschirmfotos macht.</translation>
    </message>
    <message>
        <source>The desktop portal did not answer within %1 seconds.</source>
        <translation>Das Portal der Arbeitsumgebung hat nicht innerhalb von %1 Sekunden geantwortet.</translation>
    </message>
    <message>
        <source>The desktop portal gave a picture that cannot be used: %1</source>
        <translation>Das Portal der Arbeitsumgebung hat ein Bild geliefert, das nicht verwendbar ist: %1</translation>
    </message>
    <message>
        <source>Allow screenshots for Tessaly in the desktop&apos;s settings, on the page of the applications. Where there is no such page, “flatpak permission-remove screenshot screenshot” in a terminal makes the desktop ask again.</source>
        <translation>Bildschirmfotos für Tessaly in den Einstellungen der Arbeitsumgebung auf der Seite der Anwendungen erlauben. Wo es keine solche Seite gibt, lässt „flatpak permission-remove screenshot screenshot“ im Terminal die Arbeitsumgebung erneut fragen.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and, for this desktop, %1; then log out and in again.</source>
        <translation>xdg-desktop-portal und für diese Arbeitsumgebung %1 installieren, dann ab- und wieder anmelden.</translation>
    </message>
    <message>
        <source>Try once more. If it fails again, “systemctl --user restart xdg-desktop-portal” in a terminal starts the portal anew.</source>
        <translation>Noch einmal versuchen. Wenn es wieder misslingt, startet „systemctl --user restart xdg-desktop-portal“ im Terminal das Portal neu.</translation>
    </message>
</context>
<context>
    <name>PortalSharing</name>
    <message>
        <source>%1 could not be handed over: %2.</source>
        <translation>%1 konnte nicht übergeben werden: %2.</translation>
    </message>
</context>
<context>
    <name>PostCaptureRouter</name>
    <message>
        <source>%1 has no free name left.</source>
        <translation>In %1 ist kein Name mehr frei.</translation>
    </message>
    <message>
        <source>%1 could not be written: the picture does not fit its format.</source>
        <translation>%1 konnte nicht geschrieben werden: Das Bild passt nicht in dieses Format.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the image</source>
        <translation>Das Bild konnte nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>At least one needs to stay active.</source>
        <translation>Mindestens eines muss aktiv bleiben.</translation>
    </message>
    <message>
        <source>Show in Dock</source>
        <translation>Beim Start von Tessaly ein Fenster öffnen</translation>
    </message>
    <message>
        <source>Show in menu bar</source>
        <translation>Im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Beim Anmelden öffnen</translation>
    </message>
    <message>
        <source>Show welcome on launch</source>
        <translation>Einführung beim Start anzeigen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Restart Tessaly to apply the new language.</source>
        <translation>Die neue Sprache gilt nach einem Neustart von Tessaly.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Open the editor</source>
        <translation>Den Editor öffnen</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>In eine Datei speichern</translation>
    </message>
    <message>
        <source>Show a quick access thumbnail</source>
        <translation>Eine Miniatur für den Schnellzugriff zeigen</translation>
    </message>
    <message>
        <source>Corner of the thumbnail</source>
        <translation>Ecke der Miniatur</translation>
    </message>
    <message>
        <source>Choose what happens right after you take a screenshot. &quot;Save to file&quot; uses your default save folder when set.</source>
        <translation>Was direkt nach einem Bildschirmfoto geschieht. „In eine Datei speichern“ verwendet den Standardordner, wenn einer gewählt ist.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Standardformat</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Lower values produce smaller files but more compression artefacts. 100% is lossless.</source>
        <translation>Niedrigere Werte ergeben kleinere Dateien, aber mehr Kompressionsartefakte. 100&#xa0;% ist verlustfrei.</translation>
    </message>
    <message>
        <source>Default save folder</source>
        <translation>Standardordner zum Speichern</translation>
    </message>
    <message>
        <source>Auto-copy to clipboard after saving</source>
        <translation>Nach dem Speichern in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Copy to clipboard at full size (1×)</source>
        <translation>In voller Größe in die Zwischenablage kopieren (1×)</translation>
    </message>
    <message>
        <source>Retina screenshots are 2× (144 dpi) and some apps paste them at half size. Turn this on to always paste at full pixel size — just as sharp, but the image lands larger in the document.</source>
        <translation>Hochauflösende Bildschirmfotos sind 2× (144 dpi), und manche Programme fügen sie in halber Größe ein. Eingeschaltet werden sie immer in voller Pixelgröße eingefügt – genauso scharf, aber das Bild ist im Dokument größer.</translation>
    </message>
    <message>
        <source>Adjust the selection before capturing</source>
        <translation>Die Auswahl vor der Aufnahme anpassen</translation>
    </message>
    <message>
        <source>After dragging, the selection keeps its handles so you can resize or move it. Press Return or Space, or double-click inside it, to capture — handy for catching the right frame of a video.</source>
        <translation>Nach dem Ziehen behält die Auswahl ihre Griffe und lässt sich noch ändern oder verschieben. Eingabetaste, Leertaste oder ein Doppelklick darin nimmt auf – praktisch, um das richtige Bild eines Videos zu erwischen.</translation>
    </message>
    <message>
        <source>Show a magnifier while selecting</source>
        <translation>Beim Auswählen eine Lupe zeigen</translation>
    </message>
    <message>
        <source>Shows the pixels under the pointer with its position and color, and the size of the selection in pixels. Press C to copy the color.</source>
        <translation>Zeigt die Pixel unter dem Zeiger mit Position und Farbe sowie die Größe der Auswahl in Pixeln. C kopiert die Farbe.</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Den Bildschirm beim Auswählen einfrieren</translation>
    </message>
    <message>
        <source>Hide desktop icons</source>
        <translation>Symbole der Arbeitsfläche ausblenden</translation>
    </message>
    <message>
        <source>Leaves the desktop icons out of region and full-screen captures. Your desktop doesn&apos;t change.</source>
        <translation>Lässt die Symbole der Arbeitsfläche bei Aufnahmen von Bereichen und des ganzen Bildschirms weg. Die Arbeitsfläche selbst bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Adds a countdown before the shot — time to open a menu or trigger a hover state. For region and window, the countdown starts after you pick the area.</source>
        <translation>Zählt vor der Aufnahme herunter – Zeit, um ein Menü zu öffnen oder den Zeiger über etwas zu halten. Bei Bereich und Fenster beginnt das Zählen nach der Auswahl.</translation>
    </message>
    <message>
        <source>Play sound when capturing</source>
        <translation>Beim Aufnehmen einen Klang abspielen</translation>
    </message>
    <message>
        <source>Include the window shadow</source>
        <translation>Mit dem Schatten des Fensters</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Durchsichtiger Hintergrund</translation>
    </message>
    <message>
        <source>Captures the window with its shadow and rounded corners, on transparency instead of the desktop behind it. JPEG and BMP have no transparency, so those export on white.</source>
        <translation>Nimmt das Fenster mit Schatten und runden Ecken auf durchsichtigem Grund auf statt mit dem, was dahinter liegt. JPEG und BMP kennen keine Transparenz und werden auf Weiß exportiert.</translation>
    </message>
    <message>
        <source>Open editor after a system screenshot</source>
        <translation>Nach einem Bildschirmfoto des Systems den Editor öffnen</translation>
    </message>
    <message>
        <source>Watched folder</source>
        <translation>Überwachter Ordner</translation>
    </message>
    <message>
        <source>Keep using macOS&apos;s ⇧⌘4 shortcut — Tessaly watches the folder where screenshots are saved and opens each new one in the editor.</source>
        <translation>Die Bildschirmfoto-Taste der Arbeitsumgebung bleibt in Gebrauch – Tessaly überwacht den Ordner, in dem Bildschirmfotos gespeichert werden, und öffnet jedes neue im Editor.</translation>
    </message>
    <message>
        <source>This works without the Screen Recording permission — as does pasting a screenshot with ⇧⌘N.</source>
        <translation>Das geht auch, wo die Arbeitsumgebung keinem Programm erlaubt, den Bildschirm aufzunehmen – ebenso das Einfügen eines Bildschirmfotos mit Strg+Umschalt+N.</translation>
    </message>
    <message>
        <source>After capturing</source>
        <translation>Nach der Aufnahme</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Region capture</source>
        <translation>Aufnahme eines Bereichs</translation>
    </message>
    <message>
        <source>While capturing</source>
        <translation>Während der Aufnahme</translation>
    </message>
    <message>
        <source>Window capture</source>
        <translation>Aufnahme eines Fensters</translation>
    </message>
    <message>
        <source>System screenshots</source>
        <translation>Bildschirmfotos des Systems</translation>
    </message>
    <message>
        <source>Default color</source>
        <translation>Standardfarbe</translation>
    </message>
    <message>
        <source>Default line width</source>
        <translation>Standardlinienbreite</translation>
    </message>
    <message>
        <source>Arrow head</source>
        <translation>Pfeilspitze</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>Obscure style</source>
        <translation>Art der Unkenntlichkeit</translation>
    </message>
    <message>
        <source>Spotlight shape</source>
        <translation>Form des Lichtkegels</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Drawing defaults</source>
        <translation>Vorgaben fürs Zeichnen</translation>
    </message>
    <message>
        <source>Text defaults</source>
        <translation>Vorgaben für Text</translation>
    </message>
    <message>
        <source>Tool defaults</source>
        <translation>Vorgaben für Werkzeuge</translation>
    </message>
    <message>
        <source>Keep a history of captures</source>
        <translation>Einen Verlauf der Aufnahmen führen</translation>
    </message>
    <message>
        <source>Keep captures for</source>
        <translation>Aufnahmen aufbewahren</translation>
    </message>
    <message>
        <source>Captures in the history</source>
        <translation>Aufnahmen im Verlauf</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
</context>
<context>
    <name>ProgressPanel</name>
    <message>
        <source>Stop and leave everything as it was (Esc)</source>
        <translation>Anhalten und alles lassen, wie es war (Esc)</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existiert bereits.
Ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
</context>
<context>
    <name>QuickAccess</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Das Bild kopieren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the picture in the default folder</source>
        <translation>Das Bild im Standardordner speichern</translation>
    </message>
    <message>
        <source>Annotate</source>
        <translation>Anmerken</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>An den Bildschirm anheften</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Text kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Recognition</name>
    <message>
        <source>The language data &quot;%1&quot; for text recognition could not be loaded.</source>
        <translation>Die Sprachdaten „%1“ für die Texterkennung konnten nicht geladen werden.</translation>
    </message>
    <message>
        <source>The picture did not reach text recognition.</source>
        <translation>Das Bild hat die Texterkennung nicht erreicht.</translation>
    </message>
    <message>
        <source>Text in %1 is not recognized because its language data is not installed; the package %2 adds it.</source>
        <translation>Text in %1 wird nicht erkannt, weil die Sprachdaten nicht installiert sind; das Paket %2 enthält sie.</translation>
    </message>
    <message>
        <source>The picture is too large for text recognition.</source>
        <translation>Das Bild ist zu groß für die Texterkennung.</translation>
    </message>
    <message>
        <source>No language data for text recognition is installed; the package tesseract-ocr-eng has those for English.</source>
        <translation>Es sind keine Sprachdaten für die Texterkennung installiert; das Paket tesseract-ocr-deu enthält die für Deutsch.</translation>
    </message>
    <message>
        <source>Text recognition ended unexpectedly on this picture.</source>
        <translation>Die Texterkennung wurde bei diesem Bild unerwartet beendet.</translation>
    </message>
    <message>
        <source>Text cannot be recognized because the program tessaly-recognition is not installed.</source>
        <translation>Text kann nicht erkannt werden, weil das Programm tessaly-recognition nicht installiert ist.</translation>
    </message>
    <message>
        <source>Text recognition, %1, could not be started: %2.</source>
        <translation>Die Texterkennung, %1, konnte nicht gestartet werden: %2.</translation>
    </message>
</context>
<context>
    <name>RequestReading</name>
    <message>
        <source>The option %1 of a capture cannot be &quot;%2&quot;.</source>
        <translation>Die Option %1 einer Aufnahme kann nicht „%2“ sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that can be captured.</source>
        <translation>„%1“ lässt sich nicht aufnehmen.</translation>
    </message>
    <message>
        <source>A capture has no option %1.</source>
        <translation>Eine Aufnahme hat keine Option %1.</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>%1 konnte nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>SaveImageDialog</name>
    <message>
        <source>Save Image</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
</context>
<context>
    <name>SaveOptionsAccessory</name>
    <message>
        <source>Lower values produce smaller files but more compression artefacts. 100% is lossless.</source>
        <translation>Niedrigere Werte ergeben kleinere Dateien, aber mehr Kompressionsartefakte. 100&#xa0;% ist verlustfrei.</translation>
    </message>
    <message>
        <source>Lower values produce smaller files but more compression artefacts.</source>
        <translation>Niedrigere Werte ergeben kleinere Dateien, aber mehr Kompressionsartefakte.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Also save Tessaly document</source>
        <translation>Auch als Tessaly-Dokument speichern</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>The kind of file to write</source>
        <translation>Die Art der zu schreibenden Datei</translation>
    </message>
    <message>
        <source>Saves an .tessaly file next to the image, so you can reopen it later and keep editing the annotations.</source>
        <translation>Speichert neben dem Bild eine .tessaly-Datei, um sie später wieder zu öffnen und die Anmerkungen weiterzubearbeiten.</translation>
    </message>
</context>
<context>
    <name>SettingBinding</name>
    <message>
        <source>The setting holds only until Tessaly is closed.</source>
        <translation>Die Einstellung gilt nur, bis Tessaly beendet wird.</translation>
    </message>
</context>
<context>
    <name>SettingTable</name>
    <message>
        <source>%1 is either true or false, not &quot;%2&quot;.</source>
        <translation>%1 ist entweder true oder false, nicht „%2“.</translation>
    </message>
    <message>
        <source>%1 is a whole number from %3 to %4, not &quot;%2&quot;.</source>
        <translation>%1 ist eine ganze Zahl von %3 bis %4, nicht „%2“.</translation>
    </message>
    <message>
        <source>%1 is a number from %3 to %4, not &quot;%2&quot;.</source>
        <translation>%1 ist eine Zahl von %3 bis %4, nicht „%2“.</translation>
    </message>
    <message>
        <source>%1 is a color like FF3366, not &quot;%2&quot;.</source>
        <translation>%1 ist eine Farbe wie FF3366, nicht „%2“.</translation>
    </message>
    <message>
        <source>%1 is one of %3, not &quot;%2&quot;.</source>
        <translation>%1 ist eines von %3, nicht „%2“.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The settings %1 cannot be read: it is not a file.</source>
        <translation>Die Einstellungen %1 sind nicht lesbar: Es ist keine Datei.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: %2.</source>
        <translation>Die Einstellungen %1 sind nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: the file is too large.</source>
        <translation>Die Einstellungen %1 sind nicht lesbar: Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: they are a list.</source>
        <translation>Die Einstellungen %1 sind nicht lesbar: Sie sind eine Liste.</translation>
    </message>
    <message>
        <source>The setting %1 needs a finite number.</source>
        <translation>Die Einstellung %1 braucht eine endliche Zahl.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be written: the unreadable file stays in the way.</source>
        <translation>Die Einstellungen %1 können nicht geschrieben werden: Die unlesbare Datei steht im Weg.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be written: another program is writing them.</source>
        <translation>Die Einstellungen %1 können nicht geschrieben werden: Ein anderes Programm schreibt sie gerade.</translation>
    </message>
</context>
<context>
    <name>ShortcutStateView</name>
    <message>
        <source>On this desktop: %1</source>
        <translation>In dieser Arbeitsumgebung: %1</translation>
    </message>
    <message>
        <source>The desktop has given it no keys.</source>
        <translation>Die Arbeitsumgebung hat ihm keine Tasten gegeben.</translation>
    </message>
    <message>
        <source>Not heard: another program uses this shortcut.</source>
        <translation>Ohne Wirkung: Ein anderes Programm verwendet dieses Kürzel.</translation>
    </message>
    <message>
        <source>Not heard: already used by %1.</source>
        <translation>Ohne Wirkung: bereits verwendet von %1.</translation>
    </message>
</context>
<context>
    <name>SwayConnection</name>
    <message>
        <source>Sway does not tell its windows.</source>
        <translation>Sway nennt seine Fenster nicht.</translation>
    </message>
</context>
<context>
    <name>SwayWindowSource</name>
    <message>
        <source>The window is no longer there.</source>
        <translation>Das Fenster ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>Das Fenster ist nicht auf dem Bildschirm.</translation>
    </message>
</context>
<context>
    <name>TessalyDocument</name>
    <message>
        <source>Its %1 %2.</source>
        <translation>Der Teil %1&#xa0;%2.</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>is a symbolic link</source>
        <translation>ist eine symbolische Verknüpfung</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>It is not a folder that can be opened.</source>
        <translation>Es ist kein Ordner, der sich öffnen lässt.</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>ist zu groß</translation>
    </message>
    <message>
        <source>This document was created with a newer version of Tessaly. Update Tessaly to open it.</source>
        <translation>Dieses Dokument wurde mit einer neueren Version von Tessaly erstellt. Tessaly aktualisieren, um es zu öffnen.</translation>
    </message>
    <message>
        <source>The document is damaged or incomplete.</source>
        <translation>Das Dokument ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>%1 could not be written: a folder stands there that is not a Tessaly document.</source>
        <translation>%1 konnte nicht geschrieben werden: Dort liegt ein Ordner, der kein Tessaly-Dokument ist.</translation>
    </message>
</context>
<context>
    <name>TiffEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as TIFF.</source>
        <translation>Der Speicher reicht nicht aus, um dieses Bild als TIFF zu schreiben.</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Textmarker</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Verpixeln</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Lichtkegel</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesAlert</name>
    <message>
        <source>Do you want to save your annotations?</source>
        <translation>Sollen die Anmerkungen gespeichert werden?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don&apos;t save them.</source>
        <translation>Ohne Speichern gehen die Änderungen verloren.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Nicht speichern</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark&apos;s “%1” cannot be %2.</source>
        <translation>„%1“ des Wasserzeichens kann nicht %2 sein.</translation>
    </message>
</context>
<context>
    <name>WaylandConnection</name>
    <message>
        <source>No Wayland compositor answers.</source>
        <translation>Kein Wayland-Compositor antwortet.</translation>
    </message>
    <message>
        <source>The Wayland compositor does not answer.</source>
        <translation>Der Wayland-Compositor antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>WaylandScreenSource</name>
    <message>
        <source>This build of Tessaly cannot ask the Wayland compositor for the screen.</source>
        <translation>Diese Fassung von Tessaly kann den Wayland-Compositor nicht nach dem Bildschirm fragen.</translation>
    </message>
    <message>
        <source>This Wayland compositor does not let programs capture the screen.</source>
        <translation>Dieser Wayland-Compositor lässt Programme den Bildschirm nicht aufnehmen.</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <translation>Es wurde kein Bildschirm gefunden.</translation>
    </message>
    <message>
        <source>The display %1 is not connected.</source>
        <translation>Der Bildschirm %1 ist nicht angeschlossen.</translation>
    </message>
    <message>
        <source>The Wayland compositor did not give the pixels of the display %1.</source>
        <translation>Der Wayland-Compositor hat die Pixel des Bildschirms %1 nicht geliefert.</translation>
    </message>
</context>
<context>
    <name>WebPEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as WebP.</source>
        <translation>Der Speicher reicht nicht aus, um dieses Bild als WebP zu schreiben.</translation>
    </message>
</context>
<context>
    <name>WidgetOpenPanels</name>
    <message>
        <source>Open Images</source>
        <translation>Bilder öffnen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>X11Connection</name>
    <message>
        <source>There is no screen to capture: DISPLAY names no X server.</source>
        <translation>Es gibt keinen Bildschirm zum Aufnehmen: DISPLAY nennt keinen X-Server.</translation>
    </message>
    <message>
        <source>No X server answers at %1.</source>
        <translation>Unter %1 antwortet kein X-Server.</translation>
    </message>
</context>
<context>
    <name>X11ScreenSource</name>
    <message>
        <source>The X server no longer answers.</source>
        <translation>Der X-Server antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>The area to capture lies outside the screen.</source>
        <translation>Der aufzunehmende Bereich liegt außerhalb des Bildschirms.</translation>
    </message>
    <message>
        <source>The X server did not give the screen&apos;s pixels.</source>
        <translation>Der X-Server hat die Pixel des Bildschirms nicht geliefert.</translation>
    </message>
</context>
<context>
    <name>X11WindowSource</name>
    <message>
        <source>The window was closed before it was captured.</source>
        <translation>Das Fenster wurde geschlossen, bevor es aufgenommen war.</translation>
    </message>
    <message>
        <source>The window “%1” was closed before it was captured.</source>
        <translation>Das Fenster „%1“ wurde geschlossen, bevor es aufgenommen war.</translation>
    </message>
    <message>
        <source>The window lies outside the screen.</source>
        <translation>Das Fenster liegt außerhalb des Bildschirms.</translation>
    </message>
</context>
<context>
    <name>tessaly::AboutWindow</name>
    <message>
        <source>About Tessaly</source>
        <translation>Über Tessaly</translation>
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
        <translation>Nimmt Bilder vom Bildschirm auf, versieht sie mit Anmerkungen und gibt sie weiter.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder später. Ohne jede Gewährleistung.</translation>
    </message>
    <message>
        <source>Made with Qt %1, Tesseract, ZXing, libheif and giflib.</source>
        <translation>Gemacht mit Qt %1, Tesseract, ZXing, libheif und giflib.</translation>
    </message>
    <message>
        <source>Copy Version</source>
        <translation>Version kopieren</translation>
    </message>
    <message>
        <source>Copy the versions of Tessaly, Qt and the system, for a report</source>
        <translation>Die Versionen von Tessaly, Qt und dem System für einen Bericht kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::AutomationService</name>
    <message>
        <source>Another user&apos;s program is not heard.</source>
        <translation>Auf das Programm eines anderen Benutzers wird nicht gehört.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Es gibt keine Aktion „%1“.</translation>
    </message>
</context>
<context>
    <name>tessaly::CanvasController</name>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>For a screen reader: a mark&apos;s name, its number, how many marks there are</extracomment>
        <translation>%1, %2 von %3</translation>
    </message>
</context>
<context>
    <name>tessaly::CanvasMenu</name>
    <message>
        <source>Paste Here</source>
        <translation>Hier einfügen</translation>
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
        <translation>Der Verlauf konnte nicht aktualisiert werden: %1</translation>
    </message>
    <message>
        <source>The capture couldn&apos;t be kept in the history: %1</source>
        <translation>Die Aufnahme konnte nicht im Verlauf aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>Another Tessaly keeps the history; captures of this one are handed to it.</source>
        <translation>Ein anderes Tessaly führt den Verlauf; Aufnahmen von diesem werden ihm übergeben.</translation>
    </message>
    <message>
        <source>The history couldn&apos;t be read: %1</source>
        <translation>Der Verlauf konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Keeping the capture…</source>
        <translation>Aufnahme wird aufbewahrt…</translation>
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
        <translation>Auswählen, was aufgenommen wird</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Select an area (1)</source>
        <translation>Einen Bereich auswählen (1)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Pick a window (2)</source>
        <translation>Ein Fenster wählen (2)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Capture the whole screen (3)</source>
        <translation>Den ganzen Bildschirm aufnehmen (3)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without a capture (Esc)</source>
        <translation>Ohne Aufnahme schließen (Esc)</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Capture what is selected (Return)</source>
        <translation>Das Ausgewählte aufnehmen (Eingabetaste)</translation>
    </message>
</context>
<context>
    <name>tessaly::CaptureService</name>
    <message>
        <source>No region has been captured yet.</source>
        <translation>Es wurde noch kein Bereich aufgenommen.</translation>
    </message>
</context>
<context>
    <name>tessaly::ColorSwatches</name>
    <message>
        <source>Other Color…</source>
        <translation>Andere Farbe…</translation>
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
        <translation>Befehlspalette</translation>
    </message>
    <message>
        <source>Find a command, a setting or a tool</source>
        <translation>Befehl, Einstellung oder Werkzeug finden</translation>
    </message>
    <message>
        <source>Type to search, choose with the arrow keys and Return (Esc closes)</source>
        <translation>Zum Suchen tippen, mit den Pfeiltasten und der Eingabetaste wählen (Esc schließt)</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Nothing is called “%1”.</source>
        <translation>Nichts heißt „%1“.</translation>
    </message>
</context>
<context>
    <name>tessaly::CountdownPanel</name>
    <message>
        <source>Countdown</source>
        <translation>Countdown</translation>
    </message>
    <message>
        <source>Esc to cancel</source>
        <translation>Esc bricht ab</translation>
    </message>
    <message>
        <source>Click to cancel</source>
        <translation>Klicken bricht ab</translation>
    </message>
</context>
<context>
    <name>tessaly::DragOutHandle</name>
    <message>
        <source>Drag</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Drag the finished picture into another program</source>
        <translation>Das fertige Bild in ein anderes Programm ziehen</translation>
    </message>
    <message>
        <source>Drag out</source>
        <translation>Herausziehen</translation>
    </message>
    <message>
        <source>Drag this into another program, or press Ctrl+Shift+C to copy the picture.</source>
        <translation>Dies in ein anderes Programm ziehen oder mit Strg+Umschalt+C das Bild kopieren.</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorActions</name>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>Live Text isn&apos;t available on this Mac</source>
        <translation>Live-Text ist auf diesem Computer nicht verfügbar</translation>
    </message>
    <message>
        <source>Preparing the image…</source>
        <translation>Bild wird vorbereitet…</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the image</source>
        <translation>Das Bild konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for it.</source>
        <translation>Der Speicher reicht dafür nicht aus.</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>Ein Bild wählen</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the image</source>
        <translation>Das Bild konnte nicht geöffnet werden</translation>
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
        <translation>Größe des Dokuments in echten Pixeln und seine Auflösung. Hochauflösende Aufnahmen sind 2× (144 dpi), und manche Programme fügen sie in halber Größe ein – mit „In voller Größe in die Zwischenablage kopieren“ unter Einstellungen ▸ Aufnahme werden sie immer in 1× eingefügt.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>%1 × %2 px · %3 dpi</source>
        <translation>%1 × %2 px · %3 dpi</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorTabs</name>
    <message>
        <source>Open captures</source>
        <translation>Geöffnete Aufnahmen</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Neuer Tab</translation>
    </message>
    <message>
        <source>%1 — not saved</source>
        <translation>%1 – nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom (Ctrl+wheel on the canvas)</source>
        <translation>Zoom (Strg+Mausrad auf der Arbeitsfläche)</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorWindow</name>
    <message>
        <source>%1[*] — Tessaly</source>
        <translation>%1[*] – Tessaly</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorWindowController</name>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet…</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>Der Speicher reicht dafür nicht aus.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the document</source>
        <translation>Das Dokument konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>This document comes from a newer version of Tessaly</source>
        <translation>Dieses Dokument stammt aus einer neueren Version von Tessaly</translation>
    </message>
    <message>
        <source>It has been opened as a copy, so saving won&apos;t remove anything this version doesn&apos;t understand. To keep editing the original, update Tessaly.</source>
        <translation>Es wurde als Kopie geöffnet, damit beim Speichern nichts verloren geht, was diese Version nicht versteht. Um das Original weiterzubearbeiten, Tessaly aktualisieren.</translation>
    </message>
    <message>
        <source>Pasted image</source>
        <translation>Eingefügtes Bild</translation>
    </message>
    <message>
        <source>No image on the clipboard</source>
        <translation>Kein Bild in der Zwischenablage</translation>
    </message>
    <message>
        <source>Dropped picture</source>
        <translation>Abgelegtes Bild</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the picture</source>
        <translation>Das Bild konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>A link cannot be opened</source>
        <translation>Ein Link kann nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>tessaly::EmojiButton</name>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Other emoji or short text</source>
        <translation>Anderes Emoji oder kurzer Text</translation>
    </message>
</context>
<context>
    <name>tessaly::FilePreview</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Keine Vorschau</translation>
    </message>
</context>
<context>
    <name>tessaly::HelpWindow</name>
    <message>
        <source>Tessaly Help</source>
        <translation>Tessaly-Hilfe</translation>
    </message>
    <message>
        <source>Find in the help</source>
        <translation>In der Hilfe suchen</translation>
    </message>
    <message>
        <source>Find in the help (Ctrl+F); Return goes on, Shift+Return goes back</source>
        <translation>In der Hilfe suchen (Strg+F); Eingabetaste sucht weiter, Umschalt+Eingabetaste zurück</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>tessaly::HistoryGrid</name>
    <message>
        <source>Recent Captures</source>
        <translation>Letzte Aufnahmen</translation>
    </message>
</context>
<context>
    <name>tessaly::HotKeyRecorderView</name>
    <message>
        <source>Already used by %1</source>
        <translation>Bereits verwendet von %1</translation>
    </message>
    <message>
        <source>Click and press the new shortcut</source>
        <translation>Klicken und das neue Kürzel drücken</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Kürzel drücken…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an action and its shortcut</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tessaly::IconChoice</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tessaly::LinkToastView</name>
    <message>
        <source>Open Link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>Open the link with your browser (Return)</source>
        <translation>Den Link im Browser öffnen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextLayer</name>
    <message>
        <source>Selected text: %1</source>
        <translation>Ausgewählter Text: %1</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextMenu</name>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Link öffnen</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextOverlay</name>
    <message>
        <source>Analyzing text…</source>
        <translation>Text wird analysiert…</translation>
    </message>
    <message>
        <source>Live Text isn&apos;t available on this Mac</source>
        <translation>Live-Text ist auf diesem Computer nicht verfügbar</translation>
    </message>
    <message>
        <source>No text in this image</source>
        <translation>Kein Text in diesem Bild</translation>
    </message>
    <message>
        <source>Text copied to clipboard</source>
        <translation>Text in die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>Code content copied to clipboard</source>
        <translation>Inhalt des Codes in die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the link</source>
        <translation>Der Link konnte nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>tessaly::NamePrompt</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>%1 (Return)</source>
        <translation>%1 (Eingabetaste)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Abbrechen (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::NoticeBar</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Keep what was deleted (Ctrl+Z)</source>
        <translation>Das Gelöschte behalten (Strg+Z)</translation>
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
        <translation>Ein Werkzeug wählen oder eine Anmerkung auswählen, um ihren Stil zu ändern.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
</context>
<context>
    <name>tessaly::OverflowRow</name>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
</context>
<context>
    <name>tessaly::OverlayScrollBar</name>
    <message>
        <source>Horizontal position</source>
        <translation>Horizontale Position</translation>
    </message>
    <message>
        <source>Vertical position</source>
        <translation>Vertikale Position</translation>
    </message>
</context>
<context>
    <name>tessaly::OverlaySession</name>
    <message>
        <source>Selection ready. Drag the handles or use the arrow keys to adjust it, then press Return to capture.</source>
        <translation>Auswahl bereit. Mit den Griffen oder den Pfeiltasten anpassen, dann mit der Eingabetaste aufnehmen.</translation>
    </message>
    <message>
        <source>Copied color %1</source>
        <translation>Farbe %1 kopiert</translation>
    </message>
    <message>
        <source>Select the area to capture. Drag, or use arrow keys to move and Shift-arrows to resize. Press Return to capture, Escape to cancel.</source>
        <translation>Den aufzunehmenden Bereich auswählen. Ziehen oder mit den Pfeiltasten verschieben und mit Umschalt+Pfeiltasten die Größe ändern. Die Eingabetaste nimmt auf, Esc bricht ab.</translation>
    </message>
    <message>
        <source>Press 1, 2 or 3 to switch between region, window and full screen.</source>
        <translation>Mit 1, 2 oder 3 zwischen Bereich, Fenster und ganzem Bildschirm wechseln.</translation>
    </message>
    <message>
        <source>Press C to copy the color under the pointer.</source>
        <translation>Mit C die Farbe unter dem Zeiger kopieren.</translation>
    </message>
</context>
<context>
    <name>tessaly::PinnedScreenshotController</name>
    <message>
        <source>Clicks now pass through. To unlock, choose Unlock Pinned Screenshots from the Tessaly menu bar icon or the Window menu.</source>
        <translation>Klicks gehen jetzt hindurch. Zum Entsperren „Angeheftete Bildschirmfotos entsperren“ im Menü des Tessaly-Symbols im Infobereich oder im Menü „Bild“ eines Tessaly-Fensters (Strg+Alt+U) wählen.</translation>
    </message>
</context>
<context>
    <name>tessaly::PinnedScreenshotWindow</name>
    <message>
        <source>Pinned screenshot</source>
        <translation>Angeheftetes Bildschirmfoto</translation>
    </message>
    <message>
        <source>Drag it to move it; turn the wheel for its opacity, and with Ctrl to zoom.</source>
        <translation>Zum Verschieben ziehen; das Mausrad ändert die Deckkraft, mit Strg den Zoom.</translation>
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
        <translation>Das Öffnen von Tessaly beim Anmelden konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Choose the folder in which captures are saved.</source>
        <translation>Den Ordner wählen, in dem Aufnahmen gespeichert werden.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Diesen Ordner verwenden</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Use the system default folder</source>
        <translation>Den Standardordner des Systems verwenden</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Standard des Systems</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Ändern…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht gewählt</translation>
    </message>
    <message>
        <source>Each capture is saved on this Mac with its annotations, so you can reopen it from the start window and keep editing. Nothing leaves your Mac.</source>
        <translation>Jede Aufnahme wird mit ihren Anmerkungen auf diesem Computer gespeichert und lässt sich im Startfenster wieder öffnen und weiterbearbeiten. Nichts verlässt diesen Computer.</translation>
    </message>
    <message>
        <source>New captures aren&apos;t added. The ones already in the history stay until you empty it.</source>
        <translation>Neue Aufnahmen kommen nicht hinzu. Die vorhandenen bleiben, bis der Verlauf geleert wird.</translation>
    </message>
    <message>
        <source>Empty History…</source>
        <translation>Verlauf leeren…</translation>
    </message>
    <message>
        <source>1 capture in the history will be deleted from this Mac. This can&apos;t be undone.</source>
        <translation>1 Aufnahme im Verlauf wird von diesem Computer gelöscht. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>%1 captures in the history will be deleted from this Mac. This can&apos;t be undone.</source>
        <translation>%1 Aufnahmen im Verlauf werden von diesem Computer gelöscht. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Empty the history?</source>
        <translation>Den Verlauf leeren?</translation>
    </message>
    <message>
        <source>Emptying the history doesn&apos;t touch the images and documents you saved yourself.</source>
        <translation>Selbst gespeicherte Bilder und Dokumente bleiben beim Leeren des Verlaufs unberührt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Empty History</source>
        <translation>Verlauf leeren</translation>
    </message>
</context>
<context>
    <name>tessaly::PreferencesWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
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
        <translation>Diese Arbeitsumgebung hat keinen Infobereich. Ist dieses Fenster geschlossen, zeigt es ein erneuter Start von Tessaly; Strg+Q beendet es.</translation>
    </message>
    <message>
        <source>This desktop has no tray. When this window is closed, press %1 to capture, or start Tessaly again to see it; Ctrl+Q quits it.</source>
        <translation>Diese Arbeitsumgebung hat keinen Infobereich. Ist dieses Fenster geschlossen, nimmt %1 auf, oder ein erneuter Start von Tessaly zeigt es; Strg+Q beendet es.</translation>
    </message>
</context>
<context>
    <name>tessaly::QuickAccessPanel</name>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Screenshot taken</source>
        <translation>Bildschirmfoto aufgenommen</translation>
    </message>
</context>
<context>
    <name>tessaly::QuickAccessView</name>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Drag to share</source>
        <translation>Zum Teilen ziehen</translation>
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
        <translation>%1 in Pixeln</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Resize Image</source>
        <translation>Bildgröße ändern</translation>
    </message>
    <message>
        <source>Width and height keep their ratio</source>
        <translation>Breite und Höhe behalten ihr Verhältnis</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 % of the present size</source>
        <translation>%1&#xa0;% der jetzigen Größe</translation>
    </message>
    <message>
        <source>Now %1 × %2 pixels</source>
        <translation>Jetzt %1 × %2 Pixel</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Resize the picture (Return)</source>
        <translation>Die Bildgröße ändern (Eingabetaste)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Abbrechen (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::SaveButton</name>
    <message>
        <source>Save format</source>
        <translation>Speicherformat</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>tessaly::SearchField</name>
    <message>
        <source>Search Captures</source>
        <translation>Aufnahmen suchen</translation>
    </message>
    <message>
        <source>Find captures by title, date and the text in them (Ctrl+F)</source>
        <translation>Aufnahmen nach Titel, Datum und enthaltenem Text finden (Strg+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear (Esc)</source>
        <translation>Leeren (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::SharpenDialog</name>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Sharpen Image</source>
        <translation>Bild schärfen</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>How strongly edges are sharpened</source>
        <translation>Wie stark Kanten geschärft werden</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Sharpen the picture (Return)</source>
        <translation>Das Bild schärfen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Abbrechen (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::ShortcutsSheet</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Press a letter on the canvas to switch tools. The ⌥⌘ shortcuts in the Tools menu still work.</source>
        <translation>Auf der Arbeitsfläche wechselt ein Buchstabe das Werkzeug. Die Kürzel mit Strg+Alt im Menü „Werkzeuge“ gelten weiterhin.</translation>
    </message>
</context>
<context>
    <name>tessaly::ShortcutsTab</name>
    <message>
        <source>Your desktop decides which keys these become. They can be changed in its own settings.</source>
        <translation>Welche Tasten es werden, entscheidet die Arbeitsumgebung. Sie lassen sich in deren Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Click the shortcut and press a new key combination (must include a modifier).</source>
        <translation>Auf das Kürzel klicken und eine neue Tastenkombination drücken (mit mindestens einer Umschalttaste wie Strg oder Alt).</translation>
    </message>
    <message>
        <source>Region and Window open a bar at the bottom of the screen to switch between region, window and full screen, so one shortcut is enough.</source>
        <translation>„Bereich“ und „Fenster“ öffnen unten am Bildschirm eine Leiste zum Wechseln zwischen Bereich, Fenster und ganzem Bildschirm; ein Kürzel genügt also.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Zurück zu %1</translation>
    </message>
    <message>
        <source>Reset the shortcut of %1</source>
        <translation>Das Kürzel von „%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>This desktop does not let programs listen for shortcuts. Its own keyboard settings can start a capture: add a shortcut there for each of these commands that you want.</source>
        <translation>Diese Arbeitsumgebung lässt Programme nicht auf Kürzel hören. Ihre eigenen Tastatureinstellungen können eine Aufnahme starten: Dort für jeden gewünschten Befehl ein Kürzel anlegen.</translation>
    </message>
    <message>
        <source>Command for %1: %2</source>
        <translation>Befehl für %1: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the command to the clipboard</source>
        <translation>Den Befehl in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Copy the command for %1</source>
        <translation>Den Befehl für %1 kopieren</translation>
    </message>
</context>
<context>
    <name>tessaly::StartActions</name>
    <message>
        <source>Capture Region</source>
        <translation>Bereich aufnehmen</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Open a picture or a document (Ctrl+O)</source>
        <translation>Ein Bild oder ein Dokument öffnen (Strg+O)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Open the picture on the clipboard (Ctrl+V)</source>
        <translation>Das Bild in der Zwischenablage öffnen (Strg+V)</translation>
    </message>
    <message>
        <source>There is no picture on the clipboard</source>
        <translation>In der Zwischenablage ist kein Bild</translation>
    </message>
</context>
<context>
    <name>tessaly::StartFooter</name>
    <message>
        <source>Private</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>History Settings…</source>
        <translation>Einstellungen des Verlaufs…</translation>
    </message>
    <message>
        <source>How long captures are kept, and whether any are</source>
        <translation>Ob und wie lange Aufnahmen aufbewahrt werden</translation>
    </message>
</context>
<context>
    <name>tessaly::StartView</name>
    <message>
        <source>Recent Captures</source>
        <translation>Letzte Aufnahmen</translation>
    </message>
    <message>
        <source>No Recent Captures</source>
        <translation>Keine letzten Aufnahmen</translation>
    </message>
    <message>
        <source>Start a New Capture</source>
        <translation>Eine neue Aufnahme beginnen</translation>
    </message>
    <message>
        <source>Capture, mark up and share. Your recent captures will appear here.</source>
        <translation>Aufnehmen, anmerken und teilen. Die letzten Aufnahmen erscheinen hier.</translation>
    </message>
    <message>
        <source>Capture, mark up and share.</source>
        <translation>Aufnehmen, anmerken und teilen.</translation>
    </message>
    <message>
        <source>There are no captures in the history yet.</source>
        <translation>Im Verlauf sind noch keine Aufnahmen.</translation>
    </message>
    <message>
        <source>1 capture</source>
        <translation>1 Aufnahme</translation>
    </message>
    <message>
        <source>%1 captures</source>
        <translation>%1 Aufnahmen</translation>
    </message>
    <message>
        <source>No Matches</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>No capture contains “%1”.</source>
        <translation>Keine Aufnahme enthält „%1“.</translation>
    </message>
    <message>
        <source>The file manager could not be opened.</source>
        <translation>Die Dateiverwaltung konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>In die Zwischenablage kopiert</translation>
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
        <translation>Stil %1</translation>
    </message>
    <message>
        <source>Save Style</source>
        <translation>Stil speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>Stil umbenennen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>	Alt+%1</source>
        <translation>	Alt+%1</translation>
    </message>
    <message>
        <source>No saved styles</source>
        <translation>Keine gespeicherten Stile</translation>
    </message>
    <message>
        <source>Save Style…</source>
        <translation>Stil speichern…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Restore Default Styles</source>
        <translation>Standardstile wiederherstellen</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Saved styles</source>
        <translation>Gespeicherte Stile</translation>
    </message>
    <message>
        <source>Saved styles (Alt+1 to Alt+9)</source>
        <translation>Gespeicherte Stile (Alt+1 bis Alt+9)</translation>
    </message>
</context>
<context>
    <name>tessaly::SystemScreenshotWatcher</name>
    <message>
        <source>Choose the folder where macOS saves screenshots (usually the Desktop).</source>
        <translation>Den Ordner wählen, in dem die Arbeitsumgebung Bildschirmfotos speichert (meist „Bildschirmfotos“ in „Bilder“).</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Diesen Ordner verwenden</translation>
    </message>
</context>
<context>
    <name>tessaly::TextCopier</name>
    <message>
        <source>Recognizing text…</source>
        <translation>Text wird erkannt…</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Kein Text gefunden</translation>
    </message>
    <message>
        <source>Text copied to clipboard</source>
        <translation>Text in die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>Code content copied to clipboard</source>
        <translation>Inhalt des Codes in die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>QR code link copied</source>
        <translation>Link aus QR-Code kopiert</translation>
    </message>
</context>
<context>
    <name>tessaly::ToolBarDialog</name>
    <message>
        <source>Customize Toolbar</source>
        <translation>Symbolleiste anpassen</translation>
    </message>
    <message>
        <source>Show in the toolbar:</source>
        <translation>In der Symbolleiste anzeigen:</translation>
    </message>
    <message>
        <source>Show “%1” in the toolbar</source>
        <translation>„%1“ in der Symbolleiste anzeigen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Standard wiederherstellen</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles anzeigen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Done (Return)</source>
        <translation>Fertig (Eingabetaste)</translation>
    </message>
</context>
<context>
    <name>tessaly::ToolSidebar</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
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
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Willkommen bei Tessaly</translation>
    </message>
    <message>
        <source>Take a picture of the screen, mark it up, and hand it on.</source>
        <translation>Ein Bild vom Bildschirm aufnehmen, mit Anmerkungen versehen und weitergeben.</translation>
    </message>
    <message>
        <source>Capture a region</source>
        <translation>Einen Bereich aufnehmen</translation>
    </message>
    <message>
        <source>Choose Capture Region, then drag over what you want. This desktop gives programs no keys of their own; its keyboard settings can run “tessaly capture region” for you.</source>
        <translation>„Bereich aufnehmen“ wählen und über das Gewünschte ziehen. Diese Arbeitsumgebung gibt Programmen keine eigenen Tasten; ihre Tastatureinstellungen können „tessaly capture region“ ausführen.</translation>
    </message>
    <message>
        <source>Press these keys now, or whenever something is worth keeping, then drag over it. Esc cancels.</source>
        <translation>Diese Tasten jetzt drücken, oder wann immer etwas aufbewahrenswert ist, und darüberziehen. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Mark it up</source>
        <translation>Anmerkungen machen</translation>
    </message>
    <message>
        <source>Point with arrows, write, number the steps, cover what nobody should read. Then copy it, save it, drag it into another program or pin it to the screen.</source>
        <translation>Mit Pfeilen zeigen, schreiben, Schritte nummerieren, verdecken, was niemand lesen soll. Dann kopieren, speichern, in ein anderes Programm ziehen oder an den Bildschirm anheften.</translation>
    </message>
    <message>
        <source>Find it in the tray</source>
        <translation>Im Infobereich finden</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray: click it to open Tessaly, right-click it for everything else.</source>
        <translation>Tessaly wartet als Symbol im Infobereich: Ein Klick öffnet Tessaly, ein Rechtsklick alles andere.</translation>
    </message>
    <message>
        <source>Find it again</source>
        <translation>Wiederfinden</translation>
    </message>
    <message>
        <source>This desktop shows no tray. Start Tessaly again to see your recent captures; Ctrl+Q in any of its windows quits.</source>
        <translation>Diese Arbeitsumgebung hat keinen Infobereich. Ein erneuter Start von Tessaly zeigt die letzten Aufnahmen; Strg+Q in einem seiner Fenster beendet es.</translation>
    </message>
    <message>
        <source>Yours alone</source>
        <translation>Ganz privat</translation>
    </message>
    <message>
        <source>Captures are kept only on this computer. Tessaly opens no network connection.</source>
        <translation>Aufnahmen werden nur auf diesem Computer aufbewahrt. Tessaly öffnet keine Netzwerkverbindung.</translation>
    </message>
    <message>
        <source>Show welcome on launch</source>
        <translation>Einführung beim Start anzeigen</translation>
    </message>
    <message>
        <source>Show this guide the next time that Tessaly starts</source>
        <translation>Diese Einführung beim nächsten Start von Tessaly zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Bereich aufnehmen</translation>
    </message>
    <message>
        <source>Close this guide and take a region (Return)</source>
        <translation>Diese Einführung schließen und einen Bereich aufnehmen (Eingabetaste)</translation>
    </message>
</context>
<context>
    <name>tessaly::WhatsNewSheet</name>
    <message>
        <source>What’s New</source>
        <translation>Neues</translation>
    </message>
    <message>
        <source>What’s New in Tessaly</source>
        <translation>Neues in Tessaly</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Close (Return)</source>
        <translation>Schließen (Eingabetaste)</translation>
    </message>
</context>
</TS>

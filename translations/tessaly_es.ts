<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Annotation</name>
    <message>
        <source>The mark has no “%1”.</source>
        <translation>La anotación no tiene «%1».</translation>
    </message>
    <message>
        <source>The mark&apos;s “%1” cannot be %2.</source>
        <translation>«%1» de la anotación no puede ser %2.</translation>
    </message>
</context>
<context>
    <name>AnnotationDocument</name>
    <message>
        <source>There are %1 marks; a document holds at most %2.</source>
        <translation>Hay %1 anotaciones; un documento admite como máximo %2.</translation>
    </message>
    <message>
        <source>The JSON text is longer than %1 MiB.</source>
        <translation>El texto JSON supera los %1 MiB.</translation>
    </message>
    <message>
        <source>The JSON text holds more than %1 values.</source>
        <translation>El texto JSON contiene más de %1 valores.</translation>
    </message>
    <message>
        <source>The text is not JSON: %1 at byte %2.</source>
        <translation>El texto no es JSON: %1 en el byte %2.</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>«%1» no es un número entero.</translation>
    </message>
    <message>
        <source>“%1” is not a text.</source>
        <translation>«%1» no es un texto.</translation>
    </message>
    <message>
        <source>“%1” is not a pair of numbers.</source>
        <translation>«%1» no es un par de números.</translation>
    </message>
    <message>
        <source>“%1” is not an object.</source>
        <translation>«%1» no es un objeto.</translation>
    </message>
    <message>
        <source>The mark is not an object.</source>
        <translation>La anotación no es un objeto.</translation>
    </message>
    <message>
        <source>“annotations” is not a list.</source>
        <translation>«annotations» no es una lista.</translation>
    </message>
    <message>
        <source>Mark %1: %2</source>
        <translation>Anotación %1: %2</translation>
    </message>
    <message>
        <source>“canvasSize” is missing.</source>
        <translation>Falta «canvasSize».</translation>
    </message>
    <message>
        <source>“%1” has a number that is not finite.</source>
        <translation>«%1» contiene un número que no es finito.</translation>
    </message>
    <message>
        <source>The “%1” of mark %2 has a number that is not finite.</source>
        <translation>«%1» de la anotación %2 contiene un número que no es finito.</translation>
    </message>
    <message>
        <source>The JSON text is a list, not a document.</source>
        <translation>El texto JSON es una lista y no un documento.</translation>
    </message>
    <message>
        <source>There is no frame in it.</source>
        <translation>No contiene ningún marco.</translation>
    </message>
    <message>
        <source>There is no watermark in it.</source>
        <translation>No contiene ninguna marca de agua.</translation>
    </message>
</context>
<context>
    <name>AnnotationStore</name>
    <message>
        <source>Couldn&apos;t crop the selected region.</source>
        <translation>No se pudo recortar la región seleccionada.</translation>
    </message>
</context>
<context>
    <name>AutomationClient</name>
    <message>
        <source>The running Tessaly ended before the capture was done.</source>
        <translation>El Tessaly en ejecución terminó antes de completar la captura.</translation>
    </message>
    <message>
        <source>The session bus ended before the capture was done.</source>
        <translation>El bus de sesión terminó antes de completar la captura.</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The file %1 starts another program and was left as it is.</source>
        <translation>El archivo %1 inicia otro programa y se dejó como está.</translation>
    </message>
    <message>
        <source>The file %1 could not be removed: %2.</source>
        <translation>No se pudo quitar el archivo %1: %2.</translation>
    </message>
</context>
<context>
    <name>BmpEncoder</name>
    <message>
        <source>A BMP file can hold 2 GiB of pixels, and this picture has more.</source>
        <translation>Un archivo BMP admite 2 GiB de píxeles y esta imagen tiene más.</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Screenshot, %d by %d pixels</source>
        <translation>Captura de pantalla, %d por %d píxeles</translation>
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
        <translation>La imagen soltada</translation>
    </message>
</context>
<context>
    <name>CaptureDelays</name>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 segundos</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 segundos</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 segundos</translation>
    </message>
</context>
<context>
    <name>CaptureEngine</name>
    <message>
        <source>No display was found.</source>
        <translation>No se encontró ninguna pantalla.</translation>
    </message>
    <message>
        <source>No front window was found.</source>
        <translation>No se encontró ninguna ventana frontal.</translation>
    </message>
    <message>
        <source>Couldn&apos;t crop the selected region.</source>
        <translation>No se pudo recortar la región seleccionada.</translation>
    </message>
    <message>
        <source>There is no window %1 on the screen; tessaly windows lists those that are there.</source>
        <translation>No hay ninguna ventana %1 en la pantalla; «tessaly windows» muestra las que hay.</translation>
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
        <translation>Captura rápida</translation>
    </message>
    <message>
        <source>New Collage…</source>
        <translation>Nuevo collage…</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Abrir imagen…</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Lado a lado</translation>
    </message>
    <message>
        <source>Stacked</source>
        <translation>Apilado</translation>
    </message>
</context>
<context>
    <name>CaptureService</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado al portapapeles</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Can&apos;t grant the permission? Keep using the macOS shortcut ⇧⌘4 and Tessaly will open each screenshot in the editor, or paste a screenshot with ⇧⌘N.</source>
        <translation>También puede seguir usando la tecla de captura de su escritorio: Tessaly abrirá cada captura en el editor. O pegue una captura con Ctrl+Mayús+N.</translation>
    </message>
    <message>
        <source>Detail: %1</source>
        <translation>Detalle: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t capture the screen</source>
        <translation>No se pudo capturar la pantalla</translation>
    </message>
    <message>
        <source>Use System Screenshots…</source>
        <translation>Usar las capturas del sistema…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>CollageService</name>
    <message>
        <source>And %1 others.</source>
        <translation>Y %1 más.</translation>
    </message>
    <message>
        <source>Joining images…</source>
        <translation>Uniendo imágenes…</translation>
    </message>
    <message>
        <source>Some images couldn&apos;t be opened</source>
        <translation>No se pudieron abrir algunas imágenes</translation>
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
        <translation>No hay memoria suficiente para reducir los colores de esta imagen.</translation>
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
        <translation>Herramienta</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>no disponible ahora</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>New Blank Canvas</source>
        <translation>Nuevo lienzo en blanco</translation>
    </message>
    <message>
        <source>New from Clipboard</source>
        <translation>Nuevo desde el portapapeles</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nueva pestaña</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Cerrar pestaña</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Save as Tessaly Document…</source>
        <translation>Guardar como documento de Tessaly…</translation>
    </message>
    <message>
        <source>Export As…</source>
        <translation>Exportar como…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copiar imagen</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Compartir…</translation>
    </message>
    <message>
        <source>Copy Text from Image</source>
        <translation>Copiar texto de la imagen</translation>
    </message>
    <message>
        <source>Copy Style</source>
        <translation>Copiar estilo</translation>
    </message>
    <message>
        <source>Paste Style</source>
        <translation>Pegar estilo</translation>
    </message>
    <message>
        <source>Save Style</source>
        <translation>Guardar estilo</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Bring Forward</source>
        <translation>Traer adelante</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <translation>Enviar atrás</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Traer al frente</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Enviar al fondo</translation>
    </message>
    <message>
        <source>Select Next</source>
        <translation>Seleccionar la siguiente</translation>
    </message>
    <message>
        <source>Select Previous</source>
        <translation>Seleccionar la anterior</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Anular la selección</translation>
    </message>
    <message>
        <source>Turn On Snapping</source>
        <translation>Activar el ajuste a guías</translation>
    </message>
    <message>
        <source>Turn Off Snapping</source>
        <translation>Desactivar el ajuste a guías</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Customize Toolbar…</source>
        <translation>Personalizar la barra de herramientas…</translation>
    </message>
    <message>
        <source>Show Options Bar</source>
        <translation>Mostrar la barra de opciones</translation>
    </message>
    <message>
        <source>Hide Options Bar</source>
        <translation>Ocultar la barra de opciones</translation>
    </message>
    <message>
        <source>Show Live Text</source>
        <translation>Mostrar el texto interactivo</translation>
    </message>
    <message>
        <source>Hide Live Text</source>
        <translation>Ocultar el texto interactivo</translation>
    </message>
    <message>
        <source>Rotate Counterclockwise</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Rotate Clockwise</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Voltear verticalmente</translation>
    </message>
    <message>
        <source>Resize Image…</source>
        <translation>Cambiar tamaño de la imagen…</translation>
    </message>
    <message>
        <source>Sharpen…</source>
        <translation>Aumentar la nitidez…</translation>
    </message>
    <message>
        <source>Crop…</source>
        <translation>Recortar…</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>Fijar en la pantalla</translation>
    </message>
    <message>
        <source>Unlock Pinned Screenshots</source>
        <translation>Desbloquear capturas fijadas</translation>
    </message>
    <message>
        <source>Close Pinned Screenshots</source>
        <translation>Cerrar capturas fijadas</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Capturar región</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Capturar ventana</translation>
    </message>
    <message>
        <source>Capture Front Window</source>
        <translation>Capturar la ventana frontal</translation>
    </message>
    <message>
        <source>Capture Full Screen</source>
        <translation>Capturar pantalla completa</translation>
    </message>
    <message>
        <source>Full Screen on…</source>
        <translation>Pantalla completa en…</translation>
    </message>
    <message>
        <source>Recapture Last Region</source>
        <translation>Volver a capturar la última región</translation>
    </message>
    <message>
        <source>Copy Text from Region</source>
        <translation>Copiar texto de una región</translation>
    </message>
    <message>
        <source>Region to Clipboard</source>
        <translation>Región al portapapeles</translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation>Captura rápida</translation>
    </message>
    <message>
        <source>Region to File</source>
        <translation>Región a un archivo</translation>
    </message>
    <message>
        <source>Full Screen to Clipboard</source>
        <translation>Pantalla completa al portapapeles</translation>
    </message>
    <message>
        <source>Full Screen to File</source>
        <translation>Pantalla completa a un archivo</translation>
    </message>
    <message>
        <source>New Collage — Side by side</source>
        <translation>Nuevo collage: lado a lado</translation>
    </message>
    <message>
        <source>New Collage — Stacked</source>
        <translation>Nuevo collage: apilado</translation>
    </message>
    <message>
        <source>Start Window</source>
        <translation>Ventana de inicio</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Quit Tessaly</source>
        <translation>Salir de Tessaly</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Command Palette…</source>
        <translation>Paleta de comandos…</translation>
    </message>
    <message>
        <source>About Tessaly</source>
        <translation>Acerca de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly Help</source>
        <translation>Ayuda de Tessaly</translation>
    </message>
    <message>
        <source>What’s New in Tessaly</source>
        <translation>Novedades de Tessaly</translation>
    </message>
    <message>
        <source>Welcome Guide</source>
        <translation>Guía de bienvenida</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Abrir Tessaly</translation>
    </message>
    <message>
        <source>Open Last Capture</source>
        <translation>Abrir la última captura</translation>
    </message>
    <message>
        <source>Capture Timer</source>
        <translation>Temporizador de captura</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Vaciar menú</translation>
    </message>
</context>
<context>
    <name>DocumentActions</name>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the document</source>
        <translation>No se pudo guardar el documento</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the Tessaly document next to the image</source>
        <translation>No se pudo guardar el documento de Tessaly junto a la imagen</translation>
    </message>
    <message>
        <source>Preparing the image…</source>
        <translation>Preparando la imagen…</translation>
    </message>
    <message>
        <source>Saving the document…</source>
        <translation>Guardando el documento…</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
</context>
<context>
    <name>DocumentFileDialog</name>
    <message>
        <source>Images and Tessaly documents</source>
        <translation>Imágenes y documentos de Tessaly</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save Document</source>
        <translation>Guardar documento</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
</context>
<context>
    <name>DragFile</name>
    <message>
        <source>The folder %1 could not be made.</source>
        <translation>No se pudo crear la carpeta %1.</translation>
    </message>
</context>
<context>
    <name>DroppedContent</name>
    <message>
        <source>Tessaly fetches nothing from the network. Save the picture first, and drop its file.</source>
        <translation>Tessaly no obtiene nada de la red. Guarde primero la imagen y suelte su archivo.</translation>
    </message>
</context>
<context>
    <name>EntryCommands</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Delete from History</source>
        <translation>Eliminar del historial</translation>
    </message>
</context>
<context>
    <name>EntryTexts</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Captures are kept only on this Mac, until you delete them.</source>
        <translation>Las capturas se conservan solo en este equipo, hasta que las elimine.</translation>
    </message>
    <message>
        <source>Captures are kept only on this Mac, for %1 days.</source>
        <translation>Las capturas se conservan solo en este equipo, durante %1 días.</translation>
    </message>
</context>
<context>
    <name>Errand</name>
    <message>
        <source>The capture was cancelled.</source>
        <translation>La captura se canceló.</translation>
    </message>
    <message>
        <source>The path could not be printed.</source>
        <translation>No se pudo imprimir la ruta.</translation>
    </message>
</context>
<context>
    <name>ExportService</name>
    <message>
        <source>Encoding the image…</source>
        <translation>Codificando la imagen…</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>Saving the image…</source>
        <translation>Guardando la imagen…</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the image</source>
        <translation>No se pudo guardar la imagen</translation>
    </message>
    <message>
        <source>Couldn&apos;t share the image</source>
        <translation>No se pudo compartir la imagen</translation>
    </message>
</context>
<context>
    <name>FileKinds</name>
    <message>
        <source>Tessaly document</source>
        <translation>Documento de Tessaly</translation>
    </message>
</context>
<context>
    <name>FlattenService</name>
    <message>
        <source>Couldn&apos;t prepare the image</source>
        <translation>No se pudo preparar la imagen</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be rendered with its annotations, so nothing was exported. Your work is still open — try again, or crop the image to make it smaller.</source>
        <translation>No se pudo generar la imagen con sus anotaciones, así que no se exportó nada. El trabajo sigue abierto: inténtelo de nuevo o recorte la imagen para reducirla.</translation>
    </message>
</context>
<context>
    <name>FrameSettings</name>
    <message>
        <source>Couldn&apos;t use this image as a watermark</source>
        <translation>No se pudo usar esta imagen como marca de agua</translation>
    </message>
</context>
<context>
    <name>FrameStyle</name>
    <message>
        <source>The frame&apos;s “%1” cannot be %2.</source>
        <translation>«%1» del marco no puede ser %2.</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Atardecer</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Océano</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Grafito</translation>
    </message>
    <message>
        <source>Mist</source>
        <translation>Niebla</translation>
    </message>
</context>
<context>
    <name>GifEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as GIF.</source>
        <translation>No hay memoria suficiente para escribir esta imagen como GIF.</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Take a capture</source>
        <translation>Hacer una captura</translation>
    </message>
    <message>
        <source>Press Ctrl+Alt+4 and drag over a region; Ctrl+Alt+5 takes a window, Ctrl+Alt+3 the whole screen. The settings record other keys, where the desktop lets programs have keys of their own.
While you select: Space moves the selection, Esc cancels. The bar on the screen changes between region, window and screen.
A timer, in the settings and in the menu of the tray, waits some seconds, so that you can open a menu first.</source>
        <translation>Pulse Ctrl+Alt+4 y arrastre sobre una región; Ctrl+Alt+5 captura una ventana y Ctrl+Alt+3, toda la pantalla. En los ajustes se pueden registrar otras teclas, si el escritorio permite a los programas tener las suyas.
Mientras selecciona: Espacio mueve la selección y Esc cancela. La barra en pantalla cambia entre región, ventana y pantalla.
Un temporizador, en los ajustes y en el menú de la bandeja, espera unos segundos para que pueda abrir antes un menú.</translation>
    </message>
    <message>
        <source>Mark it up</source>
        <translation>Anotarla</translation>
    </message>
    <message>
        <source>A letter chooses a tool: A for arrows, T for texts, B to pixelate. Drag on the picture to draw, click a mark to change it.
Everything can be undone with Ctrl+Z, and marks stay movable as long as the capture is kept as a Tessaly document.
Pixelated, blurred and covered parts are gone from every picture that leaves Tessaly.</source>
        <translation>Una letra elige una herramienta: A para flechas, T para textos, B para pixelar. Arrastre sobre la imagen para dibujar y haga clic en una anotación para cambiarla.
Todo se puede deshacer con Ctrl+Z, y las anotaciones se pueden mover mientras la captura se conserve como documento de Tessaly.
Las partes pixeladas, desenfocadas y tapadas desaparecen de toda imagen que sale de Tessaly.</translation>
    </message>
    <message>
        <source>Hand it on</source>
        <translation>Compartirla</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C copies the picture, Ctrl+S saves it, and the handle in the tool bar drags it into another program.
Pin to Screen keeps it above all other windows.</source>
        <translation>Ctrl+Mayús+C copia la imagen, Ctrl+S la guarda y el tirador de la barra de herramientas la arrastra a otro programa.
«Fijar en la pantalla» la mantiene sobre todas las demás ventanas.</translation>
    </message>
    <message>
        <source>Find it again</source>
        <translation>Encontrarla de nuevo</translation>
    </message>
    <message>
        <source>The start window shows your recent captures; type to search the texts in them. Delete removes one, and can be undone for ten seconds.
Captures are kept only on this computer, for as long as the settings say.</source>
        <translation>La ventana de inicio muestra las capturas recientes; escriba para buscar en sus textos. Supr elimina una y se puede deshacer durante diez segundos.
Las capturas se conservan solo en este equipo, durante el tiempo que indiquen los ajustes.</translation>
    </message>
    <message>
        <source>Where Tessaly is</source>
        <translation>Dónde está Tessaly</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray. On a desktop without a tray, start it again to see the start window. Ctrl+Q quits it.
Ctrl+Shift+P finds any command, setting and tool by its name.</source>
        <translation>Tessaly espera como icono en la bandeja. En un escritorio sin bandeja, inícielo de nuevo para ver la ventana de inicio. Ctrl+Q lo cierra.
Ctrl+Mayús+P encuentra cualquier comando, ajuste y herramienta por su nombre.</translation>
    </message>
    <message>
        <source>From scripts</source>
        <translation>Desde scripts</translation>
    </message>
    <message>
        <source>The command tessaly does most of this without a window: tessaly --help lists what it can.</source>
        <translation>El comando «tessaly» hace casi todo esto sin ventana: «tessaly --help» muestra lo que puede hacer.</translation>
    </message>
    <message>
        <source>Tools and their letters</source>
        <translation>Las herramientas y sus letras</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Los comandos y sus teclas</translation>
    </message>
    <message>
        <source>Tessaly Help</source>
        <translation>Ayuda de Tessaly</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>%1 could not be deleted: %2.</source>
        <translation>No se pudo eliminar %1: %2.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2.</source>
        <translation>No se pudo leer %1: %2.</translation>
    </message>
    <message>
        <source>A capture without identifier or date cannot be kept.</source>
        <translation>No se puede conservar una captura sin identificador o fecha.</translation>
    </message>
    <message>
        <source>%1 cannot be understood.</source>
        <translation>No se puede interpretar %1.</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
</context>
<context>
    <name>HistoryEntry</name>
    <message>
        <source>The index of the history cannot be used: %1.</source>
        <translation>El índice del historial no se puede usar: %1.</translation>
    </message>
    <message>
        <source>The “%1” of the capture cannot be read.</source>
        <translation>No se puede leer «%1» de la captura.</translation>
    </message>
    <message>
        <source>The capture has no “%1”.</source>
        <translation>La captura no tiene «%1».</translation>
    </message>
    <message>
        <source>it has no version or no entries</source>
        <translation>no tiene versión o entradas</translation>
    </message>
    <message>
        <source>it is of version %1</source>
        <translation>es de la versión %1</translation>
    </message>
</context>
<context>
    <name>HistoryPruning</name>
    <message>
        <source>1 week</source>
        <translation>1 semana</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mes</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 meses</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 año</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Siempre</translation>
    </message>
</context>
<context>
    <name>ImageEncoder</name>
    <message>
        <source>There is no picture to write.</source>
        <translation>No hay ninguna imagen que escribir.</translation>
    </message>
    <message>
        <source>A %1 picture can be at most %2 pixels wide and high, and this one has %3 × %4.</source>
        <translation>Una imagen %1 puede tener como máximo %2 píxeles de ancho y de alto, y esta tiene %3 × %4.</translation>
    </message>
    <message>
        <source>There is not enough memory to write this picture.</source>
        <translation>No hay memoria suficiente para escribir esta imagen.</translation>
    </message>
</context>
<context>
    <name>ImageReading</name>
    <message>
        <source>%1 is damaged or incomplete.</source>
        <translation>%1 está dañado o incompleto.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 está vacío.</translation>
    </message>
    <message>
        <source>%1 is not a picture of a format that can be read.</source>
        <translation>%1 no es una imagen de un formato que se pueda leer.</translation>
    </message>
    <message>
        <source>%1 has %2 × %3 pixels, more than the %4 million that are allowed.</source>
        <translation>%1 tiene %2 × %3 píxeles, más de los %4 millones permitidos.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2.</source>
        <translation>No se pudo leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 is a folder and not a picture.</source>
        <translation>%1 es una carpeta y no una imagen.</translation>
    </message>
    <message>
        <source>%1 is not a file that holds a picture.</source>
        <translation>%1 no es un archivo que contenga una imagen.</translation>
    </message>
    <message>
        <source>%1 is too large for a picture.</source>
        <translation>%1 es demasiado grande para una imagen.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>Resizing…</source>
        <translation>Cambiando el tamaño…</translation>
    </message>
    <message>
        <source>Sharpening…</source>
        <translation>Aumentando la nitidez…</translation>
    </message>
    <message>
        <source>Cropping…</source>
        <translation>Recortando…</translation>
    </message>
    <message>
        <source>Rotating…</source>
        <translation>Girando…</translation>
    </message>
    <message>
        <source>Flipping…</source>
        <translation>Volteando…</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the image</source>
        <translation>No se pudo cambiar la imagen</translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for the new picture. Your work is unchanged.</source>
        <translation>No hay memoria suficiente para la nueva imagen. El trabajo no ha cambiado.</translation>
    </message>
</context>
<context>
    <name>Intents</name>
    <message>
        <source>Open in Editor</source>
        <translation>Abrir en el editor</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copiar al portapapeles</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>Guardar en un archivo</translation>
    </message>
    <message>
        <source>Capture a region with</source>
        <translation>Capturar una región y</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Capturar región</translation>
    </message>
    <message>
        <source>Capture a window with</source>
        <translation>Capturar una ventana y</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Capturar ventana</translation>
    </message>
    <message>
        <source>Capture the screen with</source>
        <translation>Capturar la pantalla y</translation>
    </message>
    <message>
        <source>Capture Full Screen</source>
        <translation>Capturar pantalla completa</translation>
    </message>
    <message>
        <source>Copy text with</source>
        <translation>Copiar texto con</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Copiar texto</translation>
    </message>
    <message>
        <source>Open the last capture in</source>
        <translation>Abrir la última captura en</translation>
    </message>
    <message>
        <source>Open Last Capture</source>
        <translation>Abrir la última captura</translation>
    </message>
    <message>
        <source>%1 takes no destination.</source>
        <translation>%1 no admite destino.</translation>
    </message>
    <message>
        <source>There is no destination &quot;%1&quot;; it is one of editor, clipboard and file.</source>
        <translation>No existe el destino «%1»; es uno de editor, clipboard y file.</translation>
    </message>
    <message>
        <source>There are no captures in the history yet.</source>
        <translation>Todavía no hay capturas en el historial.</translation>
    </message>
</context>
<context>
    <name>JpegEncoder</name>
    <message>
        <source>The picture could not be written as JPEG: %1.</source>
        <translation>No se pudo escribir la imagen como JPEG: %1.</translation>
    </message>
</context>
<context>
    <name>LoupeView</name>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
</context>
<context>
    <name>MarkClipboard</name>
    <message>
        <source>What was copied is damaged and can&apos;t be pasted.</source>
        <translation>Lo que se copió está dañado y no se puede pegar.</translation>
    </message>
    <message>
        <source>The copied picture</source>
        <translation>La imagen copiada</translation>
    </message>
    <message>
        <source>There is nothing on the clipboard that can be pasted here.</source>
        <translation>No hay nada en el portapapeles que se pueda pegar aquí.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read: %2</source>
        <translation>No se puede leer «%1»: %2</translation>
    </message>
</context>
<context>
    <name>MarkLimits</name>
    <message>
        <source>its %1 lies at (%2, %3)</source>
        <translation>%1 está en (%2, %3)</translation>
    </message>
    <message>
        <source>its %1 has %2 elements</source>
        <translation>%1 tiene %2 elementos</translation>
    </message>
    <message>
        <source>its %1 is %2</source>
        <translation>%1 es %2</translation>
    </message>
    <message>
        <source>its tailAngle is not a number</source>
        <translation>tailAngle no es un número</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>Arrow</source>
        <translation>Flecha</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Resaltador</translation>
    </message>
    <message>
        <source>Obscured area</source>
        <translation>Área oculta</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Sello</translation>
    </message>
    <message>
        <source>Pen stroke</source>
        <translation>Trazo de lápiz</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Foco</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Pegatina</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>Lupa</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <extracomment>A mark&apos;s kind and the text in it</extracomment>
        <translation>%1 «%2»</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>&amp;Captura</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Ve&amp;ntana</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja</translation>
    </message>
</context>
<context>
    <name>MissingScreenSource</name>
    <message>
        <source>Start Tessaly from within the desktop that is to be captured, without TESSALY_PLATFORM in its environment.</source>
        <translation>Inicie Tessaly desde el escritorio que se va a capturar, sin TESSALY_PLATFORM en su entorno.</translation>
    </message>
</context>
<context>
    <name>MissingWindowSource</name>
    <message>
        <source>This desktop does not tell where its windows are.</source>
        <translation>Este escritorio no indica dónde están sus ventanas.</translation>
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
        <translation>Teclas que funcionan en todas partes</translation>
    </message>
    <message>
        <source>Take a region, a window or the whole screen while you work in another program. The settings record other combinations.</source>
        <translation>Capture una región, una ventana o toda la pantalla mientras trabaja en otro programa. En los ajustes se pueden registrar otras combinaciones.</translation>
    </message>
    <message>
        <source>At home in the tray</source>
        <translation>En la bandeja, como en casa</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray, with every way to capture, a timer and your pinned screenshots.</source>
        <translation>Tessaly espera como icono en la bandeja, con todas las formas de capturar, un temporizador y las capturas fijadas.</translation>
    </message>
    <message>
        <source>Find any command</source>
        <translation>Encontrar cualquier comando</translation>
    </message>
    <message>
        <source>Press Ctrl+Shift+P and type: commands, settings and tools are one word away.</source>
        <translation>Pulse Ctrl+Mayús+P y escriba: comandos, ajustes y herramientas están a una palabra.</translation>
    </message>
    <message>
        <source>Still yours alone</source>
        <translation>Siguen siendo solo suyas</translation>
    </message>
    <message>
        <source>Captures are kept only on this computer. Tessaly opens no network connection.</source>
        <translation>Las capturas se conservan solo en este equipo. Tessaly no abre ninguna conexión de red.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Tapered</source>
        <comment>arrowhead.tapered</comment>
        <extracomment>An arrow whose stroke tapers to a sharp head</extracomment>
        <translation>Afilada</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>arrowhead.filled</comment>
        <extracomment>An arrow head that is a solid, filled triangle</extracomment>
        <translation>Rellena</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>arrowhead.open</comment>
        <extracomment>An arrow head of two open strokes that form a V</extracomment>
        <translation>Abierta</translation>
    </message>
    <message>
        <source>Concave</source>
        <comment>arrowhead.concave</comment>
        <extracomment>An arrow head that is a triangle with a concave back edge</extracomment>
        <translation>Cóncava</translation>
    </message>
    <message>
        <source>Check</source>
        <comment>Check</comment>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Cross</source>
        <comment>Cross</comment>
        <translation>Cruz</translation>
    </message>
    <message>
        <source>Exclamation mark</source>
        <comment>stamp.exclamation</comment>
        <translation>Exclamación</translation>
    </message>
    <message>
        <source>Question mark</source>
        <comment>stamp.question</comment>
        <translation>Interrogación</translation>
    </message>
    <message>
        <source>Star</source>
        <comment>Star</comment>
        <translation>Estrella</translation>
    </message>
    <message>
        <source>Dot</source>
        <comment>Dot</comment>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Number</source>
        <comment>Number</comment>
        <translation>Número</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <comment>Pixelate</comment>
        <translation>Pixelar</translation>
    </message>
    <message>
        <source>Blur</source>
        <comment>Blur</comment>
        <translation>Desenfocar</translation>
    </message>
    <message>
        <source>Solid</source>
        <comment>Solid</comment>
        <translation>Sólido</translation>
    </message>
    <message>
        <source>Stripes</source>
        <comment>Stripes</comment>
        <translation>Rayas</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>Free</comment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Classic</source>
        <comment>style.preset.classic</comment>
        <translation>Clásico</translation>
    </message>
    <message>
        <source>Thin Blue</source>
        <comment>style.preset.thinBlue</comment>
        <translation>Fino azul</translation>
    </message>
    <message>
        <source>Curved Orange</source>
        <comment>style.preset.curvedOrange</comment>
        <translation>Curvo naranja</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>style.preset.title</comment>
        <translation>Título</translation>
    </message>
    <message>
        <source>Note</source>
        <comment>style.preset.note</comment>
        <translation>Nota</translation>
    </message>
    <message>
        <source>On Dark Background</source>
        <comment>style.preset.onDark</comment>
        <translation>Sobre fondo oscuro</translation>
    </message>
    <message>
        <source>Pink Frame</source>
        <comment>style.preset.pinkFrame</comment>
        <translation>Marco rosa</translation>
    </message>
    <message>
        <source>Thin Blue Frame</source>
        <comment>style.preset.thinBlueFrame</comment>
        <translation>Marco azul fino</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Proporción</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Proporción</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Anchura en píxeles</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Altura en píxeles</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>Lock Ratio</source>
        <translation>Bloquear proporción</translation>
    </message>
    <message>
        <source>Keep the present ratio of width to height (Shift while dragging)</source>
        <translation>Mantener la relación actual entre anchura y altura (Mayús al arrastrar)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Leave the picture as it is (Esc)</source>
        <translation>Dejar la imagen como está (Esc)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Cut the picture to the rectangle (Return)</source>
        <translation>Recortar la imagen al rectángulo (Intro)</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Margen</translation>
    </message>
    <message>
        <source>Margin around the picture</source>
        <translation>Margen alrededor de la imagen</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Esquinas</translation>
    </message>
    <message>
        <source>Radius of the picture&apos;s corners</source>
        <translation>Radio de las esquinas de la imagen</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Shadow that the picture throws</source>
        <translation>Sombra que proyecta la imagen</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <source>Present the screenshot on a background</source>
        <translation>Presentar la captura de pantalla sobre un fondo</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Sólido</translation>
    </message>
    <message>
        <source>Solid %1</source>
        <translation>Sólido %1</translation>
    </message>
    <message>
        <source>Other Color…</source>
        <translation>Otro color…</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparente</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Gradient, color or transparency</source>
        <translation>Degradado, color o transparencia</translation>
    </message>
    <message>
        <source>Aspect ratio of the framed picture</source>
        <translation>Proporción de la imagen enmarcada</translation>
    </message>
    <message>
        <source>Apply to new captures</source>
        <translation>Aplicar a las capturas nuevas</translation>
    </message>
    <message>
        <source>New captures open with this frame and watermark. Off by default, so captures stay exactly as taken.</source>
        <translation>Las capturas nuevas se abren con este marco y esta marca de agua. Desactivado al principio, para que las capturas queden tal como se hicieron.</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
    </message>
    <message>
        <source>A caption beside the stamp</source>
        <translation>Un rótulo junto al sello</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Punta</translation>
    </message>
    <message>
        <source>A tail that points away from the stamp</source>
        <translation>Una punta que sale del sello</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>A disc behind the sign</source>
        <translation>Un disco detrás del signo</translation>
    </message>
    <message>
        <source>Choose Image…</source>
        <translation>Elegir imagen…</translation>
    </message>
    <message>
        <source>Choose a picture to put onto the screenshot</source>
        <translation>Elegir una imagen para ponerla sobre la captura</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <source>Line width (Alt+wheel over the selected mark)</source>
        <translation>Grosor de línea (Alt+rueda sobre la anotación seleccionada)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Text size (Alt+wheel over the selected mark)</source>
        <translation>Tamaño del texto (Alt+rueda sobre la anotación seleccionada)</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>How strongly the highlight covers what lies below</source>
        <translation>Con qué intensidad el resaltado cubre lo que hay debajo</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Strength. For passwords, use Solid: it hides everything.</source>
        <translation>Intensidad. Para contraseñas, usar «Sólido»: lo oculta todo.</translation>
    </message>
    <message>
        <source>Dimming</source>
        <translation>Atenuación</translation>
    </message>
    <message>
        <source>How dark it is outside the spotlight</source>
        <translation>Oscuridad fuera del foco</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Aumento</translation>
    </message>
    <message>
        <source>How much the magnifier enlarges (Alt+wheel over the selected mark)</source>
        <translation>Cuánto amplía la lupa (Alt+rueda sobre la anotación seleccionada)</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Rellena</translation>
    </message>
    <message>
        <source>Both Ends</source>
        <translation>Ambos extremos</translation>
    </message>
    <message>
        <source>Curved</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Redondo</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>System Font</source>
        <translation>Fuente del sistema</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Sello</translation>
    </message>
    <message>
        <source>Hiding</source>
        <translation>Ocultación</translation>
    </message>
    <message>
        <source>Arrow Head</source>
        <translation>Punta de flecha</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Tiled over the whole picture</source>
        <translation>En mosaico por toda la imagen</translation>
    </message>
    <message>
        <source>Opacity of the watermark</source>
        <translation>Opacidad de la marca de agua</translation>
    </message>
    <message>
        <source>Size of the watermark relative to the picture</source>
        <translation>Tamaño de la marca de agua respecto a la imagen</translation>
    </message>
    <message>
        <source>Couldn&apos;t use this image as a watermark</source>
        <translation>No se pudo usar esta imagen como marca de agua</translation>
    </message>
    <message>
        <source>Choose an image for your watermark. Tessaly keeps its own copy.</source>
        <translation>Elija una imagen para la marca de agua. Tessaly conserva su propia copia.</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</source>
        <translation>Imágenes (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de agua</translation>
    </message>
    <message>
        <source>Draw a text or a logo over the finished picture</source>
        <translation>Dibujar un texto o un logotipo sobre la imagen terminada</translation>
    </message>
    <message>
        <source>Kind of watermark</source>
        <translation>Tipo de marca de agua</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Choose another logo</source>
        <translation>Elegir otro logotipo</translation>
    </message>
    <message>
        <source>Your name or notice</source>
        <translation>Su nombre o aviso</translation>
    </message>
    <message>
        <source>The text of the watermark</source>
        <translation>El texto de la marca de agua</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>Texto de la marca de agua</translation>
    </message>
    <message>
        <source>Nothing is drawn until there is a text.</source>
        <translation>No se dibuja nada mientras no haya texto.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>A text or a logo over the finished picture</source>
        <translation>Un texto o un logotipo sobre la imagen terminada</translation>
    </message>
</context>
<context>
    <name>PendingDeletion</name>
    <message>
        <source>Deleted “%1” from the history.</source>
        <translation>Se eliminó «%1» del historial.</translation>
    </message>
    <message>
        <source>Deleted %1 captures from the history.</source>
        <translation>Se eliminaron %1 capturas del historial.</translation>
    </message>
</context>
<context>
    <name>PictureTitle</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
</context>
<context>
    <name>PinnedScreenshot</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Abrir en el editor</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Let Clicks Pass Through</source>
        <translation>Dejar pasar los clics</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>On this desktop other windows can cover it</source>
        <translation>En este escritorio otras ventanas pueden taparla</translation>
    </message>
</context>
<context>
    <name>PlatformChoice</name>
    <message>
        <source>TESSALY_PLATFORM=none switches capturing off.</source>
        <translation>TESSALY_PLATFORM=none desactiva la captura.</translation>
    </message>
    <message>
        <source>TESSALY_PLATFORM names no platform to capture from: %1.</source>
        <translation>TESSALY_PLATFORM no indica ninguna plataforma de captura: %1.</translation>
    </message>
    <message>
        <source>There is no desktop to capture: neither WAYLAND_DISPLAY nor DISPLAY is set.</source>
        <translation>No hay escritorio que capturar: no están definidos ni WAYLAND_DISPLAY ni DISPLAY.</translation>
    </message>
</context>
<context>
    <name>PortalScreenSource</name>
    <message>
        <source>“%1” is no file of this computer.</source>
        <translation>«%1» no es un archivo de este equipo.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>It does not show the whole of the screen.</source>
        <translation>No muestra toda la pantalla.</translation>
    </message>
    <message>
        <source>The screenshot was cancelled.</source>
        <translation>La captura de pantalla se canceló.</translation>
    </message>
    <message>
        <source>The desktop does not allow Tessaly to take screenshots.</source>
        <translation>El escritorio no permite a Tessaly hacer capturas de pantalla.</translation>
    </message>
    <message>
        <source>This desktop has no portal that takes screenshots.</source>
        <translation>Este escritorio no tiene ningún portal que haga capturas de pantalla.</translation>
    </message>
    <message>
        <source>The desktop portal did not answer within %1 seconds.</source>
        <translation>El portal del escritorio no respondió en %1 segundos.</translation>
    </message>
    <message>
        <source>The desktop portal gave a picture that cannot be used: %1</source>
        <translation>El portal del escritorio entregó una imagen que no se puede usar: %1</translation>
    </message>
    <message>
        <source>Allow screenshots for Tessaly in the desktop&apos;s settings, on the page of the applications. Where there is no such page, “flatpak permission-remove screenshot screenshot” in a terminal makes the desktop ask again.</source>
        <translation>Permita las capturas de pantalla para Tessaly en la configuración del escritorio, en la página de aplicaciones. Si no existe esa página, «flatpak permission-remove screenshot screenshot» en una terminal hace que el escritorio vuelva a preguntar.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and, for this desktop, %1; then log out and in again.</source>
        <translation>Instale xdg-desktop-portal y, para este escritorio, %1; después cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>Try once more. If it fails again, “systemctl --user restart xdg-desktop-portal” in a terminal starts the portal anew.</source>
        <translation>Inténtelo otra vez. Si vuelve a fallar, «systemctl --user restart xdg-desktop-portal» en una terminal reinicia el portal.</translation>
    </message>
</context>
<context>
    <name>PortalSharing</name>
    <message>
        <source>%1 could not be handed over: %2.</source>
        <translation>No se pudo entregar %1: %2.</translation>
    </message>
</context>
<context>
    <name>PostCaptureRouter</name>
    <message>
        <source>%1 has no free name left.</source>
        <translation>No queda ningún nombre libre en %1.</translation>
    </message>
    <message>
        <source>%1 could not be written: the picture does not fit its format.</source>
        <translation>No se pudo escribir %1: la imagen no cabe en su formato.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the image</source>
        <translation>No se pudo guardar la imagen</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>At least one needs to stay active.</source>
        <translation>Al menos uno debe seguir activo.</translation>
    </message>
    <message>
        <source>Show in Dock</source>
        <translation>Abrir una ventana al iniciar Tessaly</translation>
    </message>
    <message>
        <source>Show in menu bar</source>
        <translation>Mostrar en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Show welcome on launch</source>
        <translation>Mostrar la bienvenida al iniciar</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Restart Tessaly to apply the new language.</source>
        <translation>Reinicie Tessaly para aplicar el nuevo idioma.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportamiento</translation>
    </message>
    <message>
        <source>Open the editor</source>
        <translation>Abrir el editor</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copiar al portapapeles</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>Guardar en un archivo</translation>
    </message>
    <message>
        <source>Show a quick access thumbnail</source>
        <translation>Mostrar una miniatura de acceso rápido</translation>
    </message>
    <message>
        <source>Corner of the thumbnail</source>
        <translation>Esquina de la miniatura</translation>
    </message>
    <message>
        <source>Choose what happens right after you take a screenshot. &quot;Save to file&quot; uses your default save folder when set.</source>
        <translation>Elija qué ocurre justo después de hacer una captura. «Guardar en un archivo» usa la carpeta predeterminada si está definida.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Formato predeterminado</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Lower values produce smaller files but more compression artefacts. 100% is lossless.</source>
        <translation>Los valores bajos producen archivos más pequeños, pero más artefactos de compresión. 100&#xa0;% es sin pérdida.</translation>
    </message>
    <message>
        <source>Default save folder</source>
        <translation>Carpeta de guardado predeterminada</translation>
    </message>
    <message>
        <source>Auto-copy to clipboard after saving</source>
        <translation>Copiar al portapapeles después de guardar</translation>
    </message>
    <message>
        <source>Copy to clipboard at full size (1×)</source>
        <translation>Copiar al portapapeles a tamaño completo (1×)</translation>
    </message>
    <message>
        <source>Retina screenshots are 2× (144 dpi) and some apps paste them at half size. Turn this on to always paste at full pixel size — just as sharp, but the image lands larger in the document.</source>
        <translation>Las capturas de alta densidad son 2× (144 ppp) y algunas aplicaciones las pegan a la mitad de su tamaño. Active esto para pegarlas siempre a tamaño completo: igual de nítidas, pero la imagen queda más grande en el documento.</translation>
    </message>
    <message>
        <source>Adjust the selection before capturing</source>
        <translation>Ajustar la selección antes de capturar</translation>
    </message>
    <message>
        <source>After dragging, the selection keeps its handles so you can resize or move it. Press Return or Space, or double-click inside it, to capture — handy for catching the right frame of a video.</source>
        <translation>Tras arrastrar, la selección conserva sus tiradores para cambiar su tamaño o moverla. Pulse Intro o Espacio, o haga doble clic dentro, para capturar; útil para atrapar el fotograma correcto de un vídeo.</translation>
    </message>
    <message>
        <source>Show a magnifier while selecting</source>
        <translation>Mostrar una lupa al seleccionar</translation>
    </message>
    <message>
        <source>Shows the pixels under the pointer with its position and color, and the size of the selection in pixels. Press C to copy the color.</source>
        <translation>Muestra los píxeles bajo el puntero con su posición y color, y el tamaño de la selección en píxeles. Pulse C para copiar el color.</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Congelar la pantalla al seleccionar</translation>
    </message>
    <message>
        <source>Hide desktop icons</source>
        <translation>Ocultar los iconos del escritorio</translation>
    </message>
    <message>
        <source>Leaves the desktop icons out of region and full-screen captures. Your desktop doesn&apos;t change.</source>
        <translation>Excluye los iconos del escritorio de las capturas de región y de pantalla completa. El escritorio no cambia.</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>Adds a countdown before the shot — time to open a menu or trigger a hover state. For region and window, the countdown starts after you pick the area.</source>
        <translation>Añade una cuenta atrás antes de la captura: tiempo para abrir un menú o situar el puntero. Para región y ventana, empieza después de elegir el área.</translation>
    </message>
    <message>
        <source>Play sound when capturing</source>
        <translation>Reproducir un sonido al capturar</translation>
    </message>
    <message>
        <source>Include the window shadow</source>
        <translation>Incluir la sombra de la ventana</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Fondo transparente</translation>
    </message>
    <message>
        <source>Captures the window with its shadow and rounded corners, on transparency instead of the desktop behind it. JPEG and BMP have no transparency, so those export on white.</source>
        <translation>Captura la ventana con su sombra y sus esquinas redondeadas, sobre transparencia en lugar del escritorio que hay detrás. JPEG y BMP no tienen transparencia y se exportan sobre blanco.</translation>
    </message>
    <message>
        <source>Open editor after a system screenshot</source>
        <translation>Abrir el editor tras una captura del sistema</translation>
    </message>
    <message>
        <source>Watched folder</source>
        <translation>Carpeta vigilada</translation>
    </message>
    <message>
        <source>Keep using macOS&apos;s ⇧⌘4 shortcut — Tessaly watches the folder where screenshots are saved and opens each new one in the editor.</source>
        <translation>Siga usando la tecla de captura de su escritorio: Tessaly vigila la carpeta donde se guardan las capturas y abre cada nueva en el editor.</translation>
    </message>
    <message>
        <source>This works without the Screen Recording permission — as does pasting a screenshot with ⇧⌘N.</source>
        <translation>Esto funciona también donde el escritorio no permite a ningún programa capturar la pantalla, igual que pegar una captura con Ctrl+Mayús+N.</translation>
    </message>
    <message>
        <source>After capturing</source>
        <translation>Después de capturar</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Region capture</source>
        <translation>Captura de región</translation>
    </message>
    <message>
        <source>While capturing</source>
        <translation>Durante la captura</translation>
    </message>
    <message>
        <source>Window capture</source>
        <translation>Captura de ventana</translation>
    </message>
    <message>
        <source>System screenshots</source>
        <translation>Capturas del sistema</translation>
    </message>
    <message>
        <source>Default color</source>
        <translation>Color predeterminado</translation>
    </message>
    <message>
        <source>Default line width</source>
        <translation>Grosor de línea predeterminado</translation>
    </message>
    <message>
        <source>Arrow head</source>
        <translation>Punta de flecha</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>Obscure style</source>
        <translation>Estilo de ocultación</translation>
    </message>
    <message>
        <source>Spotlight shape</source>
        <translation>Forma del foco</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Sello</translation>
    </message>
    <message>
        <source>Drawing defaults</source>
        <translation>Dibujo predeterminado</translation>
    </message>
    <message>
        <source>Text defaults</source>
        <translation>Texto predeterminado</translation>
    </message>
    <message>
        <source>Tool defaults</source>
        <translation>Herramientas predeterminadas</translation>
    </message>
    <message>
        <source>Keep a history of captures</source>
        <translation>Conservar un historial de capturas</translation>
    </message>
    <message>
        <source>Keep captures for</source>
        <translation>Conservar las capturas</translation>
    </message>
    <message>
        <source>Captures in the history</source>
        <translation>Capturas en el historial</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
</context>
<context>
    <name>ProgressPanel</name>
    <message>
        <source>Stop and leave everything as it was (Esc)</source>
        <translation>Detener y dejar todo como estaba (Esc)</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
</context>
<context>
    <name>QuickAccess</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado al portapapeles</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Copiar la imagen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save the picture in the default folder</source>
        <translation>Guardar la imagen en la carpeta predeterminada</translation>
    </message>
    <message>
        <source>Annotate</source>
        <translation>Anotar</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>Fijar en la pantalla</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Copiar texto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Recognition</name>
    <message>
        <source>The language data &quot;%1&quot; for text recognition could not be loaded.</source>
        <translation>No se pudieron cargar los datos de idioma «%1» para el reconocimiento de texto.</translation>
    </message>
    <message>
        <source>The picture did not reach text recognition.</source>
        <translation>La imagen no llegó al reconocimiento de texto.</translation>
    </message>
    <message>
        <source>Text in %1 is not recognized because its language data is not installed; the package %2 adds it.</source>
        <translation>No se reconoce el texto en %1 porque sus datos de idioma no están instalados; el paquete %2 los añade.</translation>
    </message>
    <message>
        <source>The picture is too large for text recognition.</source>
        <translation>La imagen es demasiado grande para el reconocimiento de texto.</translation>
    </message>
    <message>
        <source>No language data for text recognition is installed; the package tesseract-ocr-eng has those for English.</source>
        <translation>No hay datos de idioma instalados para el reconocimiento de texto; el paquete tesseract-ocr-spa contiene los del español.</translation>
    </message>
    <message>
        <source>Text recognition ended unexpectedly on this picture.</source>
        <translation>El reconocimiento de texto terminó inesperadamente con esta imagen.</translation>
    </message>
    <message>
        <source>Text cannot be recognized because the program tessaly-recognition is not installed.</source>
        <translation>No se puede reconocer texto porque el programa tessaly-recognition no está instalado.</translation>
    </message>
    <message>
        <source>Text recognition, %1, could not be started: %2.</source>
        <translation>No se pudo iniciar el reconocimiento de texto, %1: %2.</translation>
    </message>
</context>
<context>
    <name>RequestReading</name>
    <message>
        <source>The option %1 of a capture cannot be &quot;%2&quot;.</source>
        <translation>La opción %1 de una captura no puede ser «%2».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that can be captured.</source>
        <translation>«%1» no es nada que se pueda capturar.</translation>
    </message>
    <message>
        <source>A capture has no option %1.</source>
        <translation>Una captura no tiene la opción %1.</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>No se pudo escribir %1: %2.</translation>
    </message>
</context>
<context>
    <name>SaveImageDialog</name>
    <message>
        <source>Save Image</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
</context>
<context>
    <name>SaveOptionsAccessory</name>
    <message>
        <source>Lower values produce smaller files but more compression artefacts. 100% is lossless.</source>
        <translation>Los valores bajos producen archivos más pequeños, pero más artefactos de compresión. 100&#xa0;% es sin pérdida.</translation>
    </message>
    <message>
        <source>Lower values produce smaller files but more compression artefacts.</source>
        <translation>Los valores bajos producen archivos más pequeños, pero más artefactos de compresión.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Also save Tessaly document</source>
        <translation>Guardar también un documento de Tessaly</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>The kind of file to write</source>
        <translation>El tipo de archivo que se escribe</translation>
    </message>
    <message>
        <source>Saves an .tessaly file next to the image, so you can reopen it later and keep editing the annotations.</source>
        <translation>Guarda un archivo .tessaly junto a la imagen, para volver a abrirlo más tarde y seguir editando las anotaciones.</translation>
    </message>
</context>
<context>
    <name>SettingBinding</name>
    <message>
        <source>The setting holds only until Tessaly is closed.</source>
        <translation>El ajuste solo vale hasta que se cierre Tessaly.</translation>
    </message>
</context>
<context>
    <name>SettingTable</name>
    <message>
        <source>%1 is either true or false, not &quot;%2&quot;.</source>
        <translation>%1 es true o false, no «%2».</translation>
    </message>
    <message>
        <source>%1 is a whole number from %3 to %4, not &quot;%2&quot;.</source>
        <translation>%1 es un número entero de %3 a %4, no «%2».</translation>
    </message>
    <message>
        <source>%1 is a number from %3 to %4, not &quot;%2&quot;.</source>
        <translation>%1 es un número de %3 a %4, no «%2».</translation>
    </message>
    <message>
        <source>%1 is a color like FF3366, not &quot;%2&quot;.</source>
        <translation>%1 es un color como FF3366, no «%2».</translation>
    </message>
    <message>
        <source>%1 is one of %3, not &quot;%2&quot;.</source>
        <translation>%1 es uno de %3, no «%2».</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The settings %1 cannot be read: it is not a file.</source>
        <translation>No se pueden leer los ajustes %1: no es un archivo.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: %2.</source>
        <translation>No se pueden leer los ajustes %1: %2.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: the file is too large.</source>
        <translation>No se pueden leer los ajustes %1: el archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be read: they are a list.</source>
        <translation>No se pueden leer los ajustes %1: son una lista.</translation>
    </message>
    <message>
        <source>The setting %1 needs a finite number.</source>
        <translation>El ajuste %1 requiere un número finito.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be written: the unreadable file stays in the way.</source>
        <translation>No se pueden escribir los ajustes %1: el archivo ilegible lo impide.</translation>
    </message>
    <message>
        <source>The settings %1 cannot be written: another program is writing them.</source>
        <translation>No se pueden escribir los ajustes %1: otro programa los está escribiendo.</translation>
    </message>
</context>
<context>
    <name>ShortcutStateView</name>
    <message>
        <source>On this desktop: %1</source>
        <translation>En este escritorio: %1</translation>
    </message>
    <message>
        <source>The desktop has given it no keys.</source>
        <translation>El escritorio no le ha asignado teclas.</translation>
    </message>
    <message>
        <source>Not heard: another program uses this shortcut.</source>
        <translation>Sin efecto: otro programa usa este atajo.</translation>
    </message>
    <message>
        <source>Not heard: already used by %1.</source>
        <translation>Sin efecto: ya lo usa %1.</translation>
    </message>
</context>
<context>
    <name>SwayConnection</name>
    <message>
        <source>Sway does not tell its windows.</source>
        <translation>Sway no indica sus ventanas.</translation>
    </message>
</context>
<context>
    <name>SwayWindowSource</name>
    <message>
        <source>The window is no longer there.</source>
        <translation>La ventana ya no está.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>La ventana no está en la pantalla.</translation>
    </message>
</context>
<context>
    <name>TessalyDocument</name>
    <message>
        <source>Its %1 %2.</source>
        <translation>Su parte %1&#xa0;%2.</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>is a symbolic link</source>
        <translation>es un enlace simbólico</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>It is not a folder that can be opened.</source>
        <translation>No es una carpeta que se pueda abrir.</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>This document was created with a newer version of Tessaly. Update Tessaly to open it.</source>
        <translation>Este documento se creó con una versión más reciente de Tessaly. Actualice Tessaly para abrirlo.</translation>
    </message>
    <message>
        <source>The document is damaged or incomplete.</source>
        <translation>El documento está dañado o incompleto.</translation>
    </message>
    <message>
        <source>%1 could not be written: a folder stands there that is not a Tessaly document.</source>
        <translation>No se pudo escribir %1: hay una carpeta que no es un documento de Tessaly.</translation>
    </message>
</context>
<context>
    <name>TiffEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as TIFF.</source>
        <translation>No hay memoria suficiente para escribir esta imagen como TIFF.</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flecha</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Resaltador</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixelar</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Sello</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Foco</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Pegatina</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupa</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesAlert</name>
    <message>
        <source>Do you want to save your annotations?</source>
        <translation>¿Desea guardar las anotaciones?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don&apos;t save them.</source>
        <translation>Los cambios se perderán si no los guarda.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>No guardar</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>The watermark&apos;s “%1” cannot be %2.</source>
        <translation>«%1» de la marca de agua no puede ser %2.</translation>
    </message>
</context>
<context>
    <name>WaylandConnection</name>
    <message>
        <source>No Wayland compositor answers.</source>
        <translation>Ningún compositor de Wayland responde.</translation>
    </message>
    <message>
        <source>The Wayland compositor does not answer.</source>
        <translation>El compositor de Wayland no responde.</translation>
    </message>
</context>
<context>
    <name>WaylandScreenSource</name>
    <message>
        <source>This build of Tessaly cannot ask the Wayland compositor for the screen.</source>
        <translation>Esta compilación de Tessaly no puede pedir la pantalla al compositor de Wayland.</translation>
    </message>
    <message>
        <source>This Wayland compositor does not let programs capture the screen.</source>
        <translation>Este compositor de Wayland no permite a los programas capturar la pantalla.</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <translation>No se encontró ninguna pantalla.</translation>
    </message>
    <message>
        <source>The display %1 is not connected.</source>
        <translation>La pantalla %1 no está conectada.</translation>
    </message>
    <message>
        <source>The Wayland compositor did not give the pixels of the display %1.</source>
        <translation>El compositor de Wayland no entregó los píxeles de la pantalla %1.</translation>
    </message>
</context>
<context>
    <name>WebPEncoder</name>
    <message>
        <source>There is not enough memory to write this picture as WebP.</source>
        <translation>No hay memoria suficiente para escribir esta imagen como WebP.</translation>
    </message>
</context>
<context>
    <name>WidgetOpenPanels</name>
    <message>
        <source>Open Images</source>
        <translation>Abrir imágenes</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
</context>
<context>
    <name>X11Connection</name>
    <message>
        <source>There is no screen to capture: DISPLAY names no X server.</source>
        <translation>No hay pantalla que capturar: DISPLAY no indica ningún servidor X.</translation>
    </message>
    <message>
        <source>No X server answers at %1.</source>
        <translation>Ningún servidor X responde en %1.</translation>
    </message>
</context>
<context>
    <name>X11ScreenSource</name>
    <message>
        <source>The X server no longer answers.</source>
        <translation>El servidor X ya no responde.</translation>
    </message>
    <message>
        <source>The area to capture lies outside the screen.</source>
        <translation>El área que se va a capturar está fuera de la pantalla.</translation>
    </message>
    <message>
        <source>The X server did not give the screen&apos;s pixels.</source>
        <translation>El servidor X no entregó los píxeles de la pantalla.</translation>
    </message>
</context>
<context>
    <name>X11WindowSource</name>
    <message>
        <source>The window was closed before it was captured.</source>
        <translation>La ventana se cerró antes de capturarla.</translation>
    </message>
    <message>
        <source>The window “%1” was closed before it was captured.</source>
        <translation>La ventana «%1» se cerró antes de capturarla.</translation>
    </message>
    <message>
        <source>The window lies outside the screen.</source>
        <translation>La ventana está fuera de la pantalla.</translation>
    </message>
</context>
<context>
    <name>tessaly::AboutWindow</name>
    <message>
        <source>About Tessaly</source>
        <translation>Acerca de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Takes pictures of the screen, marks them up and hands them on.</source>
        <translation>Toma imágenes de la pantalla, las anota y las comparte.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior. Sin garantía alguna.</translation>
    </message>
    <message>
        <source>Made with Qt %1, Tesseract, ZXing, libheif and giflib.</source>
        <translation>Hecho con Qt %1, Tesseract, ZXing, libheif y giflib.</translation>
    </message>
    <message>
        <source>Copy Version</source>
        <translation>Copiar versión</translation>
    </message>
    <message>
        <source>Copy the versions of Tessaly, Qt and the system, for a report</source>
        <translation>Copiar las versiones de Tessaly, Qt y el sistema, para un informe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Cerrar (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::AutomationService</name>
    <message>
        <source>Another user&apos;s program is not heard.</source>
        <translation>No se atiende al programa de otro usuario.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>No existe la acción «%1».</translation>
    </message>
</context>
<context>
    <name>tessaly::CanvasController</name>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>For a screen reader: a mark&apos;s name, its number, how many marks there are</extracomment>
        <translation>%1, %2 de %3</translation>
    </message>
</context>
<context>
    <name>tessaly::CanvasMenu</name>
    <message>
        <source>Paste Here</source>
        <translation>Pegar aquí</translation>
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
        <translation>No se pudo actualizar el historial: %1</translation>
    </message>
    <message>
        <source>The capture couldn&apos;t be kept in the history: %1</source>
        <translation>No se pudo conservar la captura en el historial: %1</translation>
    </message>
    <message>
        <source>Another Tessaly keeps the history; captures of this one are handed to it.</source>
        <translation>Otro Tessaly lleva el historial; las capturas de este se le entregan.</translation>
    </message>
    <message>
        <source>The history couldn&apos;t be read: %1</source>
        <translation>No se pudo leer el historial: %1</translation>
    </message>
    <message>
        <source>Keeping the capture…</source>
        <translation>Conservando la captura…</translation>
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
        <translation>Elegir qué capturar</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Select an area (1)</source>
        <translation>Seleccionar un área (1)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Pick a window (2)</source>
        <translation>Elegir una ventana (2)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Capture the whole screen (3)</source>
        <translation>Capturar toda la pantalla (3)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close without a capture (Esc)</source>
        <translation>Cerrar sin capturar (Esc)</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capturar</translation>
    </message>
    <message>
        <source>Capture what is selected (Return)</source>
        <translation>Capturar lo seleccionado (Intro)</translation>
    </message>
</context>
<context>
    <name>tessaly::CaptureService</name>
    <message>
        <source>No region has been captured yet.</source>
        <translation>Todavía no se ha capturado ninguna región.</translation>
    </message>
</context>
<context>
    <name>tessaly::ColorSwatches</name>
    <message>
        <source>Other Color…</source>
        <translation>Otro color…</translation>
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
        <translation>Paleta de comandos</translation>
    </message>
    <message>
        <source>Find a command, a setting or a tool</source>
        <translation>Buscar un comando, un ajuste o una herramienta</translation>
    </message>
    <message>
        <source>Type to search, choose with the arrow keys and Return (Esc closes)</source>
        <translation>Escriba para buscar; elija con las flechas e Intro (Esc cierra)</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Nothing is called “%1”.</source>
        <translation>Nada se llama «%1».</translation>
    </message>
</context>
<context>
    <name>tessaly::CountdownPanel</name>
    <message>
        <source>Countdown</source>
        <translation>Cuenta atrás</translation>
    </message>
    <message>
        <source>Esc to cancel</source>
        <translation>Esc para cancelar</translation>
    </message>
    <message>
        <source>Click to cancel</source>
        <translation>Clic para cancelar</translation>
    </message>
</context>
<context>
    <name>tessaly::DragOutHandle</name>
    <message>
        <source>Drag</source>
        <translation>Arrastrar</translation>
    </message>
    <message>
        <source>Drag the finished picture into another program</source>
        <translation>Arrastrar la imagen terminada a otro programa</translation>
    </message>
    <message>
        <source>Drag out</source>
        <translation>Arrastrar fuera</translation>
    </message>
    <message>
        <source>Drag this into another program, or press Ctrl+Shift+C to copy the picture.</source>
        <translation>Arrastre esto a otro programa o pulse Ctrl+Mayús+C para copiar la imagen.</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorActions</name>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado al portapapeles</translation>
    </message>
    <message>
        <source>Live Text isn&apos;t available on this Mac</source>
        <translation>El texto interactivo no está disponible en este equipo</translation>
    </message>
    <message>
        <source>Preparing the image…</source>
        <translation>Preparando la imagen…</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the image</source>
        <translation>No se pudo leer la imagen</translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for it.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>Elegir una imagen</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</source>
        <translation>Imágenes (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the image</source>
        <translation>No se pudo abrir la imagen</translation>
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
        <translation>Tamaño del documento en píxeles reales y su resolución. Las capturas de alta densidad son 2× (144 ppp) y algunas aplicaciones las pegan a la mitad de su tamaño; con «Copiar al portapapeles a tamaño completo» en Ajustes ▸ Captura se pegan siempre a 1×.</translation>
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
        <translation>Capturas abiertas</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nueva pestaña</translation>
    </message>
    <message>
        <source>%1 — not saved</source>
        <translation>%1: sin guardar</translation>
    </message>
</context>
<context>
    <name>tessaly::EditorToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom (Ctrl+wheel on the canvas)</source>
        <translation>Zoom (Ctrl+rueda sobre el lienzo)</translation>
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
        <translation>Abriendo %1…</translation>
    </message>
    <message>
        <source>There is not enough memory for it.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the document</source>
        <translation>No se pudo abrir el documento</translation>
    </message>
    <message>
        <source>This document comes from a newer version of Tessaly</source>
        <translation>Este documento procede de una versión más reciente de Tessaly</translation>
    </message>
    <message>
        <source>It has been opened as a copy, so saving won&apos;t remove anything this version doesn&apos;t understand. To keep editing the original, update Tessaly.</source>
        <translation>Se ha abierto como copia para que al guardar no se pierda nada que esta versión no entienda. Para seguir editando el original, actualice Tessaly.</translation>
    </message>
    <message>
        <source>Pasted image</source>
        <translation>Imagen pegada</translation>
    </message>
    <message>
        <source>No image on the clipboard</source>
        <translation>No hay ninguna imagen en el portapapeles</translation>
    </message>
    <message>
        <source>Dropped picture</source>
        <translation>Imagen soltada</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the picture</source>
        <translation>No se pudo abrir la imagen</translation>
    </message>
    <message>
        <source>A link cannot be opened</source>
        <translation>No se puede abrir un enlace</translation>
    </message>
</context>
<context>
    <name>tessaly::EmojiButton</name>
    <message>
        <source>Sticker</source>
        <translation>Pegatina</translation>
    </message>
    <message>
        <source>Other emoji or short text</source>
        <translation>Otro emoji o texto breve</translation>
    </message>
</context>
<context>
    <name>tessaly::FilePreview</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 seleccionados</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Sin vista previa</translation>
    </message>
</context>
<context>
    <name>tessaly::HelpWindow</name>
    <message>
        <source>Tessaly Help</source>
        <translation>Ayuda de Tessaly</translation>
    </message>
    <message>
        <source>Find in the help</source>
        <translation>Buscar en la ayuda</translation>
    </message>
    <message>
        <source>Find in the help (Ctrl+F); Return goes on, Shift+Return goes back</source>
        <translation>Buscar en la ayuda (Ctrl+F); Intro avanza, Mayús+Intro retrocede</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>tessaly::HistoryGrid</name>
    <message>
        <source>Recent Captures</source>
        <translation>Capturas recientes</translation>
    </message>
</context>
<context>
    <name>tessaly::HotKeyRecorderView</name>
    <message>
        <source>Already used by %1</source>
        <translation>Ya lo usa %1</translation>
    </message>
    <message>
        <source>Click and press the new shortcut</source>
        <translation>Haga clic y pulse el nuevo atajo</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Pulse el atajo…</translation>
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
        <translation>Abrir enlace</translation>
    </message>
    <message>
        <source>Open the link with your browser (Return)</source>
        <translation>Abrir el enlace con el navegador (Intro)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Cerrar (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextLayer</name>
    <message>
        <source>Selected text: %1</source>
        <translation>Texto seleccionado: %1</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextMenu</name>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Abrir enlace</translation>
    </message>
</context>
<context>
    <name>tessaly::LiveTextOverlay</name>
    <message>
        <source>Analyzing text…</source>
        <translation>Analizando el texto…</translation>
    </message>
    <message>
        <source>Live Text isn&apos;t available on this Mac</source>
        <translation>El texto interactivo no está disponible en este equipo</translation>
    </message>
    <message>
        <source>No text in this image</source>
        <translation>No hay texto en esta imagen</translation>
    </message>
    <message>
        <source>Text copied to clipboard</source>
        <translation>Texto copiado al portapapeles</translation>
    </message>
    <message>
        <source>Code content copied to clipboard</source>
        <translation>Contenido del código copiado al portapapeles</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the link</source>
        <translation>No se pudo abrir el enlace</translation>
    </message>
</context>
<context>
    <name>tessaly::NamePrompt</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>%1 (Return)</source>
        <translation>%1 (Intro)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Cancelar (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::NoticeBar</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Keep what was deleted (Ctrl+Z)</source>
        <translation>Conservar lo eliminado (Ctrl+Z)</translation>
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
        <translation>Elija una herramienta o seleccione una anotación para cambiar su estilo.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
</context>
<context>
    <name>tessaly::OverflowRow</name>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
</context>
<context>
    <name>tessaly::OverlayScrollBar</name>
    <message>
        <source>Horizontal position</source>
        <translation>Posición horizontal</translation>
    </message>
    <message>
        <source>Vertical position</source>
        <translation>Posición vertical</translation>
    </message>
</context>
<context>
    <name>tessaly::OverlaySession</name>
    <message>
        <source>Selection ready. Drag the handles or use the arrow keys to adjust it, then press Return to capture.</source>
        <translation>Selección lista. Arrastre los tiradores o use las teclas de flecha para ajustarla y pulse Intro para capturar.</translation>
    </message>
    <message>
        <source>Copied color %1</source>
        <translation>Color %1 copiado</translation>
    </message>
    <message>
        <source>Select the area to capture. Drag, or use arrow keys to move and Shift-arrows to resize. Press Return to capture, Escape to cancel.</source>
        <translation>Seleccione el área que desea capturar. Arrastre, o use las flechas para mover y Mayús+flechas para cambiar el tamaño. Pulse Intro para capturar, Escape para cancelar.</translation>
    </message>
    <message>
        <source>Press 1, 2 or 3 to switch between region, window and full screen.</source>
        <translation>Pulse 1, 2 o 3 para cambiar entre región, ventana y pantalla completa.</translation>
    </message>
    <message>
        <source>Press C to copy the color under the pointer.</source>
        <translation>Pulse C para copiar el color bajo el puntero.</translation>
    </message>
</context>
<context>
    <name>tessaly::PinnedScreenshotController</name>
    <message>
        <source>Clicks now pass through. To unlock, choose Unlock Pinned Screenshots from the Tessaly menu bar icon or the Window menu.</source>
        <translation>Los clics ahora pasan a través. Para desbloquear, elija «Desbloquear capturas fijadas» en el menú del icono de Tessaly de la bandeja o en el menú Imagen de una ventana de Tessaly (Ctrl+Alt+U).</translation>
    </message>
</context>
<context>
    <name>tessaly::PinnedScreenshotWindow</name>
    <message>
        <source>Pinned screenshot</source>
        <translation>Captura fijada</translation>
    </message>
    <message>
        <source>Drag it to move it; turn the wheel for its opacity, and with Ctrl to zoom.</source>
        <translation>Arrástrela para moverla; gire la rueda para la opacidad y, con Ctrl, para el zoom.</translation>
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
        <translation>No se pudo cambiar la apertura de Tessaly al iniciar sesión.</translation>
    </message>
    <message>
        <source>Choose the folder in which captures are saved.</source>
        <translation>Elija la carpeta en la que se guardan las capturas.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Usar esta carpeta</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Use the system default folder</source>
        <translation>Usar la carpeta predeterminada del sistema</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminada del sistema</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Cambiar…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Each capture is saved on this Mac with its annotations, so you can reopen it from the start window and keep editing. Nothing leaves your Mac.</source>
        <translation>Cada captura se guarda en este equipo con sus anotaciones, para volver a abrirla desde la ventana de inicio y seguir editándola. Nada sale de su equipo.</translation>
    </message>
    <message>
        <source>New captures aren&apos;t added. The ones already in the history stay until you empty it.</source>
        <translation>No se añaden capturas nuevas. Las que ya están en el historial permanecen hasta que lo vacíe.</translation>
    </message>
    <message>
        <source>Empty History…</source>
        <translation>Vaciar historial…</translation>
    </message>
    <message>
        <source>1 capture in the history will be deleted from this Mac. This can&apos;t be undone.</source>
        <translation>Se eliminará de este equipo 1 captura del historial. Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>%1 captures in the history will be deleted from this Mac. This can&apos;t be undone.</source>
        <translation>Se eliminarán de este equipo %1 capturas del historial. Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Empty the history?</source>
        <translation>¿Vaciar el historial?</translation>
    </message>
    <message>
        <source>Emptying the history doesn&apos;t touch the images and documents you saved yourself.</source>
        <translation>Vaciar el historial no afecta a las imágenes y documentos que haya guardado usted.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Empty History</source>
        <translation>Vaciar historial</translation>
    </message>
</context>
<context>
    <name>tessaly::PreferencesWindow</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
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
        <translation>Este escritorio no tiene bandeja. Cuando cierre esta ventana, inicie Tessaly de nuevo para verla; Ctrl+Q lo cierra.</translation>
    </message>
    <message>
        <source>This desktop has no tray. When this window is closed, press %1 to capture, or start Tessaly again to see it; Ctrl+Q quits it.</source>
        <translation>Este escritorio no tiene bandeja. Cuando cierre esta ventana, pulse %1 para capturar o inicie Tessaly de nuevo para verla; Ctrl+Q lo cierra.</translation>
    </message>
</context>
<context>
    <name>tessaly::QuickAccessPanel</name>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Screenshot taken</source>
        <translation>Captura de pantalla hecha</translation>
    </message>
</context>
<context>
    <name>tessaly::QuickAccessView</name>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Drag to share</source>
        <translation>Arrastrar para compartir</translation>
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
        <translation>%1 en píxeles</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Mantener las proporciones</translation>
    </message>
    <message>
        <source>Resize Image</source>
        <translation>Cambiar tamaño de la imagen</translation>
    </message>
    <message>
        <source>Width and height keep their ratio</source>
        <translation>La anchura y la altura mantienen su relación</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 % of the present size</source>
        <translation>%1&#xa0;% del tamaño actual</translation>
    </message>
    <message>
        <source>Now %1 × %2 pixels</source>
        <translation>Ahora %1 × %2 píxeles</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Resize the picture (Return)</source>
        <translation>Cambiar el tamaño de la imagen (Intro)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Cancelar (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::SaveButton</name>
    <message>
        <source>Save format</source>
        <translation>Formato de guardado</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>tessaly::SearchField</name>
    <message>
        <source>Search Captures</source>
        <translation>Buscar capturas</translation>
    </message>
    <message>
        <source>Find captures by title, date and the text in them (Ctrl+F)</source>
        <translation>Buscar capturas por título, fecha y el texto que contienen (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Clear (Esc)</source>
        <translation>Borrar (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::SharpenDialog</name>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>Sharpen Image</source>
        <translation>Aumentar la nitidez de la imagen</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>How strongly edges are sharpened</source>
        <translation>Con qué intensidad se realzan los bordes</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Sharpen the picture (Return)</source>
        <translation>Aumentar la nitidez de la imagen (Intro)</translation>
    </message>
    <message>
        <source>Cancel (Esc)</source>
        <translation>Cancelar (Esc)</translation>
    </message>
</context>
<context>
    <name>tessaly::ShortcutsSheet</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Press a letter on the canvas to switch tools. The ⌥⌘ shortcuts in the Tools menu still work.</source>
        <translation>Pulse una letra en el lienzo para cambiar de herramienta. Los atajos Ctrl+Alt del menú Herramientas siguen funcionando.</translation>
    </message>
</context>
<context>
    <name>tessaly::ShortcutsTab</name>
    <message>
        <source>Your desktop decides which keys these become. They can be changed in its own settings.</source>
        <translation>El escritorio decide qué teclas serán. Se pueden cambiar en su propia configuración.</translation>
    </message>
    <message>
        <source>Click the shortcut and press a new key combination (must include a modifier).</source>
        <translation>Haga clic en el atajo y pulse una nueva combinación de teclas (debe incluir un modificador).</translation>
    </message>
    <message>
        <source>Region and Window open a bar at the bottom of the screen to switch between region, window and full screen, so one shortcut is enough.</source>
        <translation>Región y Ventana abren una barra en la parte inferior de la pantalla para cambiar entre región, ventana y pantalla completa, así que basta con un atajo.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Volver a %1</translation>
    </message>
    <message>
        <source>Reset the shortcut of %1</source>
        <translation>Restablecer el atajo de «%1»</translation>
    </message>
    <message>
        <source>This desktop does not let programs listen for shortcuts. Its own keyboard settings can start a capture: add a shortcut there for each of these commands that you want.</source>
        <translation>Este escritorio no permite a los programas recibir atajos. Su propia configuración de teclado puede iniciar una captura: añada allí un atajo para cada comando que desee.</translation>
    </message>
    <message>
        <source>Command for %1: %2</source>
        <translation>Comando para %1: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the command to the clipboard</source>
        <translation>Copiar el comando al portapapeles</translation>
    </message>
    <message>
        <source>Copy the command for %1</source>
        <translation>Copiar el comando para %1</translation>
    </message>
</context>
<context>
    <name>tessaly::StartActions</name>
    <message>
        <source>Capture Region</source>
        <translation>Capturar región</translation>
    </message>
    <message>
        <source>Capture Window</source>
        <translation>Capturar ventana</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Open a picture or a document (Ctrl+O)</source>
        <translation>Abrir una imagen o un documento (Ctrl+O)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Open the picture on the clipboard (Ctrl+V)</source>
        <translation>Abrir la imagen del portapapeles (Ctrl+V)</translation>
    </message>
    <message>
        <source>There is no picture on the clipboard</source>
        <translation>No hay ninguna imagen en el portapapeles</translation>
    </message>
</context>
<context>
    <name>tessaly::StartFooter</name>
    <message>
        <source>Private</source>
        <translation>Privado</translation>
    </message>
    <message>
        <source>History Settings…</source>
        <translation>Ajustes del historial…</translation>
    </message>
    <message>
        <source>How long captures are kept, and whether any are</source>
        <translation>Si se conservan capturas y durante cuánto tiempo</translation>
    </message>
</context>
<context>
    <name>tessaly::StartView</name>
    <message>
        <source>Recent Captures</source>
        <translation>Capturas recientes</translation>
    </message>
    <message>
        <source>No Recent Captures</source>
        <translation>No hay capturas recientes</translation>
    </message>
    <message>
        <source>Start a New Capture</source>
        <translation>Hacer una nueva captura</translation>
    </message>
    <message>
        <source>Capture, mark up and share. Your recent captures will appear here.</source>
        <translation>Capturar, anotar y compartir. Las capturas recientes aparecerán aquí.</translation>
    </message>
    <message>
        <source>Capture, mark up and share.</source>
        <translation>Capturar, anotar y compartir.</translation>
    </message>
    <message>
        <source>There are no captures in the history yet.</source>
        <translation>Todavía no hay capturas en el historial.</translation>
    </message>
    <message>
        <source>1 capture</source>
        <translation>1 captura</translation>
    </message>
    <message>
        <source>%1 captures</source>
        <translation>%1 capturas</translation>
    </message>
    <message>
        <source>No Matches</source>
        <translation>Sin resultados</translation>
    </message>
    <message>
        <source>No capture contains “%1”.</source>
        <translation>Ninguna captura contiene «%1».</translation>
    </message>
    <message>
        <source>The file manager could not be opened.</source>
        <translation>No se pudo abrir el gestor de archivos.</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado al portapapeles</translation>
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
        <translation>Estilo %1</translation>
    </message>
    <message>
        <source>Save Style</source>
        <translation>Guardar estilo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>Cambiar nombre del estilo</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>	Alt+%1</source>
        <translation>	Alt+%1</translation>
    </message>
    <message>
        <source>No saved styles</source>
        <translation>No hay estilos guardados</translation>
    </message>
    <message>
        <source>Save Style…</source>
        <translation>Guardar estilo…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Restore Default Styles</source>
        <translation>Restaurar estilos predeterminados</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Estilos</translation>
    </message>
    <message>
        <source>Saved styles</source>
        <translation>Estilos guardados</translation>
    </message>
    <message>
        <source>Saved styles (Alt+1 to Alt+9)</source>
        <translation>Estilos guardados (Alt+1 a Alt+9)</translation>
    </message>
</context>
<context>
    <name>tessaly::SystemScreenshotWatcher</name>
    <message>
        <source>Choose the folder where macOS saves screenshots (usually the Desktop).</source>
        <translation>Elija la carpeta donde el escritorio guarda las capturas de pantalla (normalmente, «Capturas de pantalla» en «Imágenes»).</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Usar esta carpeta</translation>
    </message>
</context>
<context>
    <name>tessaly::TextCopier</name>
    <message>
        <source>Recognizing text…</source>
        <translation>Reconociendo texto…</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>No se encontró texto</translation>
    </message>
    <message>
        <source>Text copied to clipboard</source>
        <translation>Texto copiado al portapapeles</translation>
    </message>
    <message>
        <source>Code content copied to clipboard</source>
        <translation>Contenido del código copiado al portapapeles</translation>
    </message>
    <message>
        <source>QR code link copied</source>
        <translation>Enlace del código QR copiado</translation>
    </message>
</context>
<context>
    <name>tessaly::ToolBarDialog</name>
    <message>
        <source>Customize Toolbar</source>
        <translation>Personalizar la barra de herramientas</translation>
    </message>
    <message>
        <source>Show in the toolbar:</source>
        <translation>Mostrar en la barra de herramientas:</translation>
    </message>
    <message>
        <source>Show “%1” in the toolbar</source>
        <translation>Mostrar «%1» en la barra de herramientas</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Done (Return)</source>
        <translation>Hecho (Intro)</translation>
    </message>
</context>
<context>
    <name>tessaly::ToolSidebar</name>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
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
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Le damos la bienvenida a Tessaly</translation>
    </message>
    <message>
        <source>Take a picture of the screen, mark it up, and hand it on.</source>
        <translation>Tome una imagen de la pantalla, anótela y compártala.</translation>
    </message>
    <message>
        <source>Capture a region</source>
        <translation>Capturar una región</translation>
    </message>
    <message>
        <source>Choose Capture Region, then drag over what you want. This desktop gives programs no keys of their own; its keyboard settings can run “tessaly capture region” for you.</source>
        <translation>Elija «Capturar región» y arrastre sobre lo que desee. Este escritorio no asigna teclas a los programas; su configuración de teclado puede ejecutar «tessaly capture region».</translation>
    </message>
    <message>
        <source>Press these keys now, or whenever something is worth keeping, then drag over it. Esc cancels.</source>
        <translation>Pulse estas teclas ahora, o cuando algo merezca guardarse, y arrastre por encima. Esc cancela.</translation>
    </message>
    <message>
        <source>Mark it up</source>
        <translation>Anotarla</translation>
    </message>
    <message>
        <source>Point with arrows, write, number the steps, cover what nobody should read. Then copy it, save it, drag it into another program or pin it to the screen.</source>
        <translation>Señale con flechas, escriba, numere los pasos, tape lo que nadie deba leer. Después cópiela, guárdela, arrástrela a otro programa o fíjela en la pantalla.</translation>
    </message>
    <message>
        <source>Find it in the tray</source>
        <translation>Encontrarlo en la bandeja</translation>
    </message>
    <message>
        <source>Tessaly waits as an icon in the tray: click it to open Tessaly, right-click it for everything else.</source>
        <translation>Tessaly espera como icono en la bandeja: haga clic para abrir Tessaly y clic derecho para todo lo demás.</translation>
    </message>
    <message>
        <source>Find it again</source>
        <translation>Encontrarla de nuevo</translation>
    </message>
    <message>
        <source>This desktop shows no tray. Start Tessaly again to see your recent captures; Ctrl+Q in any of its windows quits.</source>
        <translation>Este escritorio no muestra bandeja. Inicie Tessaly de nuevo para ver las capturas recientes; Ctrl+Q en cualquiera de sus ventanas lo cierra.</translation>
    </message>
    <message>
        <source>Yours alone</source>
        <translation>Solo suyas</translation>
    </message>
    <message>
        <source>Captures are kept only on this computer. Tessaly opens no network connection.</source>
        <translation>Las capturas se conservan solo en este equipo. Tessaly no abre ninguna conexión de red.</translation>
    </message>
    <message>
        <source>Show welcome on launch</source>
        <translation>Mostrar la bienvenida al iniciar</translation>
    </message>
    <message>
        <source>Show this guide the next time that Tessaly starts</source>
        <translation>Mostrar esta guía la próxima vez que se inicie Tessaly</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Cerrar (Esc)</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Capturar región</translation>
    </message>
    <message>
        <source>Close this guide and take a region (Return)</source>
        <translation>Cerrar esta guía y capturar una región (Intro)</translation>
    </message>
</context>
<context>
    <name>tessaly::WhatsNewSheet</name>
    <message>
        <source>What’s New</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>What’s New in Tessaly</source>
        <translation>Novedades de Tessaly</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Close (Return)</source>
        <translation>Cerrar (Intro)</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>my_classes::CustomTextEditor</name>
    <message>
        <source>Main Toolbar</source>
        <translation>Barra de herramientas principal</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Insert Image</source>
        <translation>Insertar imagen</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Imágenes (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>Lang: %1 | </source>
        <translation>Idioma: %1 | </translation>
    </message>
    <message>
        <source>Selected: </source>
        <translation>Selección: </translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
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
        <source>Underline</source>
        <translation>Subrayado</translation>
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
        <source>Paste Unformatted</source>
        <translation>Pegar sin formato</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Justify Left</source>
        <translation>Alinear a la izquierda</translation>
    </message>
    <message>
        <source>Justify Center</source>
        <translation>Centrar</translation>
    </message>
    <message>
        <source>Justify Right</source>
        <translation>Alinear a la derecha</translation>
    </message>
    <message>
        <source>Justify Full</source>
        <translation>Justificar</translation>
    </message>
    <message>
        <source>Numbered List</source>
        <translation>Lista numerada</translation>
    </message>
    <message>
        <source>Bullet List Disc</source>
        <translation>Lista con viñetas redondas</translation>
    </message>
    <message>
        <source>Bullet List Square</source>
        <translation>Lista con viñetas cuadradas</translation>
    </message>
    <message>
        <source>Clear Selection Formatting</source>
        <translation>Quitar el formato de la selección</translation>
    </message>
    <message>
        <source>Check Spelling</source>
        <translation>Revisar la ortografía</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Corregir</translation>
    </message>
    <message>
        <source>Append to Dictionary</source>
        <translation>Añadir al diccionario</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>Insertar tabla</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Tipo de letra</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Tamaño de letra</translation>
    </message>
    <message>
        <source>Spellcheck Suggestions</source>
        <translation>Sugerencias ortográficas</translation>
    </message>
    <message>
        <source>Spelling suggestions</source>
        <translation>Sugerencias ortográficas</translation>
    </message>
    <message>
        <source>Insert Row Above</source>
        <translation>Insertar fila encima</translation>
    </message>
    <message>
        <source>Insert Row Below</source>
        <translation>Insertar fila debajo</translation>
    </message>
    <message>
        <source>Insert Column Before</source>
        <translation>Insertar columna antes</translation>
    </message>
    <message>
        <source>Insert Column After</source>
        <translation>Insertar columna después</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Eliminar filas</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Eliminar columnas</translation>
    </message>
    <message numerus="yes">
        <source>%1 sentences</source>
        <translation>
            <numerusform>%1 frase</numerusform>
            <numerusform>%1 frases</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 words</source>
        <translation>
            <numerusform>%1 palabra</numerusform>
            <numerusform>%1 palabras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>%1 carácter</numerusform>
            <numerusform>%1 caracteres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>my_classes::DownloadDialog</name>
    <message>
        <source>Download File</source>
        <translation>Descargar archivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Progreso de la descarga</translation>
    </message>
    <message>
        <source>Descarga completada</source>
        <translation>Descarga completada</translation>
    </message>
    <message>
        <source>Error en la descarga</source>
        <translation>Error en la descarga</translation>
    </message>
    <message>
        <source>Descarga cancelada</source>
        <translation>Descarga cancelada</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>my_classes::EditableTabWidget</name>
    <message>
        <source>El título de la pestaña no puede estar vacío.</source>
        <translation>El título de la pestaña no puede estar vacío.</translation>
    </message>
    <message>
        <source>El título de la pestaña ya existe. Por favor, elige otro título.</source>
        <translation>El título de la pestaña ya existe. Por favor, elige otro título.</translation>
    </message>
    <message>
        <source>Confirm delete &apos;%1&apos;?

Note: this action becomes permanent after document save.</source>
        <translation>¿Eliminar «%1»?

Nota: esta acción será definitiva al guardar el documento.</translation>
    </message>
    <message>
        <source>Document Section Deletion</source>
        <translation>Eliminación de una sección del documento</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
</context>
<context>
    <name>my_classes::FileDownloader</name>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>There is no file name.</source>
        <translation>Falta el nombre del archivo.</translation>
    </message>
    <message>
        <source>The server answered: %1 %2</source>
        <translation>El servidor ha respondido: %1 %2</translation>
    </message>
    <message>
        <source>The connection was closed before the whole file had arrived.</source>
        <translation>La conexión se cerró antes de que llegara el archivo completo.</translation>
    </message>
</context>
<context>
    <name>my_classes::ImageSizeInputDialog</name>
    <message>
        <source>Image Size</source>
        <translation>Tamaño de la imagen</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>Ancho de la imagen:</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>Alto de la imagen:</translation>
    </message>
</context>
<context>
    <name>my_classes::MainWindow</name>
    <message>
        <source>MainWindow with CustomTextEditor</source>
        <translation>Ventana principal con CustomTextEditor</translation>
    </message>
</context>
<context>
    <name>my_classes::SearchDialog</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>No matches found.</source>
        <translation>No se han encontrado coincidencias.</translation>
    </message>
    <message>
        <source>No matches found!</source>
        <translation>¡No se han encontrado coincidencias!</translation>
    </message>
    <message>
        <source>No more matches found!</source>
        <translation>¡No hay más coincidencias!</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Reemplazar todo</translation>
    </message>
    <message>
        <source>Total %1 matches replaced!</source>
        <translation>¡Se han reemplazado %1 coincidencias en total!</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>%1 matches replaced</source>
        <translation>%1 coincidencias reemplazadas</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Reemplazar por:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Reemplazar por</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
</context>
<context>
    <name>my_classes::SizeForm</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Write an integer value</source>
        <translation>Escriba un número entero</translation>
    </message>
</context>
<context>
    <name>my_classes::TableDimensionInputDialog</name>
    <message>
        <source>Table Dimensión</source>
        <translation>Dimensión de la tabla</translation>
    </message>
    <message>
        <source>Table Rows:</source>
        <translation>Filas de la tabla:</translation>
    </message>
    <message>
        <source>Table Columns:</source>
        <translation>Columnas de la tabla:</translation>
    </message>
</context>
<context>
    <name>my_classes::TitleField</name>
    <message>
        <source>Tab title</source>
        <translation>Título de la pestaña</translation>
    </message>
</context>
</TS>

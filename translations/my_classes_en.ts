<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>my_classes::CustomTextEditor</name>
    <message>
        <source>Main Toolbar</source>
        <translation>Main Toolbar</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Insert Image</source>
        <translation>Insert Image</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Images (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>Lang: %1 | </source>
        <translation>Lang: %1 | </translation>
    </message>
    <message>
        <source>Selected: </source>
        <translation>Selected: </translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Underline</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Paste Unformatted</source>
        <translation>Paste Unformatted</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Justify Left</source>
        <translation>Justify Left</translation>
    </message>
    <message>
        <source>Justify Center</source>
        <translation>Justify Center</translation>
    </message>
    <message>
        <source>Justify Right</source>
        <translation>Justify Right</translation>
    </message>
    <message>
        <source>Justify Full</source>
        <translation>Justify Full</translation>
    </message>
    <message>
        <source>Numbered List</source>
        <translation>Numbered List</translation>
    </message>
    <message>
        <source>Bullet List Disc</source>
        <translation>Bullet List Disc</translation>
    </message>
    <message>
        <source>Bullet List Square</source>
        <translation>Bullet List Square</translation>
    </message>
    <message>
        <source>Clear Selection Formatting</source>
        <translation>Clear Selection Formatting</translation>
    </message>
    <message>
        <source>Check Spelling</source>
        <translation>Check Spelling</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Correct</translation>
    </message>
    <message>
        <source>Append to Dictionary</source>
        <translation>Append to Dictionary</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>Insert Table</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Font family</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Font size</translation>
    </message>
    <message>
        <source>Spellcheck Suggestions</source>
        <translation>Spellcheck Suggestions</translation>
    </message>
    <message>
        <source>Spelling suggestions</source>
        <translation>Spelling suggestions</translation>
    </message>
    <message>
        <source>Insert Row Above</source>
        <translation>Insert Row Above</translation>
    </message>
    <message>
        <source>Insert Row Below</source>
        <translation>Insert Row Below</translation>
    </message>
    <message>
        <source>Insert Column Before</source>
        <translation>Insert Column Before</translation>
    </message>
    <message>
        <source>Insert Column After</source>
        <translation>Insert Column After</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Remove Rows</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Remove Columns</translation>
    </message>
    <message numerus="yes">
        <source>%1 sentences</source>
        <translation>
            <numerusform>%1 sentence</numerusform>
            <numerusform>%1 sentences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 words</source>
        <translation>
            <numerusform>%1 word</numerusform>
            <numerusform>%1 words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>%1 character</numerusform>
            <numerusform>%1 characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>my_classes::DownloadDialog</name>
    <message>
        <source>Download File</source>
        <translation>Download File</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Download progress</translation>
    </message>
    <message>
        <source>Descarga completada</source>
        <translation>Download completed</translation>
    </message>
    <message>
        <source>Error en la descarga</source>
        <translation>Download failed</translation>
    </message>
    <message>
        <source>Descarga cancelada</source>
        <translation>Download cancelled</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>my_classes::EditableTabWidget</name>
    <message>
        <source>El título de la pestaña no puede estar vacío.</source>
        <translation>The title of the tab cannot be empty.</translation>
    </message>
    <message>
        <source>El título de la pestaña ya existe. Por favor, elige otro título.</source>
        <translation>The title of the tab exists already. Please choose another one.</translation>
    </message>
    <message>
        <source>Confirm delete &apos;%1&apos;?

Note: this action becomes permanent after document save.</source>
        <translation>Confirm delete &apos;%1&apos;?

Note: this action becomes permanent after document save.</translation>
    </message>
    <message>
        <source>Document Section Deletion</source>
        <translation>Document Section Deletion</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
</context>
<context>
    <name>my_classes::FileDownloader</name>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>The file cannot be written: %1</translation>
    </message>
    <message>
        <source>There is no file name.</source>
        <translation>There is no file name.</translation>
    </message>
    <message>
        <source>The server answered: %1 %2</source>
        <translation>The server answered: %1 %2</translation>
    </message>
    <message>
        <source>The connection was closed before the whole file had arrived.</source>
        <translation>The connection was closed before the whole file had arrived.</translation>
    </message>
</context>
<context>
    <name>my_classes::ImageSizeInputDialog</name>
    <message>
        <source>Image Size</source>
        <translation>Image Size</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>Image Width:</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>Image Height:</translation>
    </message>
</context>
<context>
    <name>my_classes::MainWindow</name>
    <message>
        <source>MainWindow with CustomTextEditor</source>
        <translation>MainWindow with CustomTextEditor</translation>
    </message>
</context>
<context>
    <name>my_classes::SearchDialog</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>No matches found.</source>
        <translation>No matches found.</translation>
    </message>
    <message>
        <source>No matches found!</source>
        <translation>No matches found!</translation>
    </message>
    <message>
        <source>No more matches found!</source>
        <translation>No more matches found!</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Replace All</translation>
    </message>
    <message>
        <source>Total %1 matches replaced!</source>
        <translation>Total %1 matches replaced!</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>%1 matches replaced</source>
        <translation>%1 matches replaced</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Find and Replace</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Find:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Replace with:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Replace with</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Find Next</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
</context>
<context>
    <name>my_classes::SizeForm</name>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Write an integer value</source>
        <translation>Write an integer value</translation>
    </message>
</context>
<context>
    <name>my_classes::TableDimensionInputDialog</name>
    <message>
        <source>Table Dimensión</source>
        <translation>Table Dimension</translation>
    </message>
    <message>
        <source>Table Rows:</source>
        <translation>Table Rows:</translation>
    </message>
    <message>
        <source>Table Columns:</source>
        <translation>Table Columns:</translation>
    </message>
</context>
<context>
    <name>my_classes::TitleField</name>
    <message>
        <source>Tab title</source>
        <translation>Tab title</translation>
    </message>
</context>
</TS>

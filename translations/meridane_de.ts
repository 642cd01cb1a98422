<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Core</name>
    <message>
        <source>Add a screen</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This project has no screen yet.</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a Screen</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>create start project</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>load project folder</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>store write disk</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>store copy elsewhere</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave project</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exit end leave</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>welcome home examples recent</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add picture photo icon bitmap resource</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>generate code build output display</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>run play start simulate display</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>problems errors warnings validate lint</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>back revert</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>again repeat forward</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clipboard move</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clipboard</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clipboard insert</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clone double copy</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove erase clear</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mark everything</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name id identifier</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page create</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>order top above z-order stack layer</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>order up above z-order stack layer</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>order down below z-order stack layer</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>order bottom below z-order stack layer background</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>larger bigger magnify scale</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>smaller scale</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zoom 100% original 1:1 scale</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zoom whole all scale window</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>theme colors system</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>theme colors bright day</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>theme colors night</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>panels windows docks default restore</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values inspector sheet attributes</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>focus window dock</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page tab</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keys hotkeys bindings customize</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>manual documentation</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>version</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not possible at the moment</source>
        <extracomment>app/CommandModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No command has a name like this.</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a command, screen or element</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a command</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands that were found</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 › %2</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elements</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add new place element</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Screen %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page show open</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>recent project load</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes of &quot;%1&quot;?</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is not saved is lost when the project is closed.</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Project</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meridane projects (project.json)</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project As a New Folder</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export QML Into an Empty Folder or an Earlier Export</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Images</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot;</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un&amp;do</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;New Screen</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring to &amp;Front</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brin&amp;g Forward</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Back&amp;ward</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send to Bac&amp;k</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un&amp;do %1</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no screen to add to.</source>
        <extracomment>app/ElementClipboard.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard holds no elements.</source>
        <extracomment>app/ElementClipboard.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No elements. The plug-in with the visual elements was not found.</source>
        <extracomment>app/ElementPalette.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: drag it onto the screen, or click it and then the place for it.</source>
        <extracomment>app/ElementPalette.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;pen…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has not been opened.</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has not been saved. %1</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Command…</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Meridane Designer</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program shows the user guide. It is in &quot;%1&quot;.</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Meridane Designer</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meridane Designer %1</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lays out the screens of small panel displays and exports them as QML.

Running on Qt %1.</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beginning</source>
        <extracomment>app/HistoryModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <extracomment>app/HistoryModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>app/HistoryPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import I&amp;mages…</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is called &quot;%2&quot; now: the new picture is of another format.</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Uses</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (And %1 more.)</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pasted</source>
        <extracomment>app/ImageData.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the image</source>
        <extracomment>app/ImageDelegate.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <extracomment>app/ImageList.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be shown</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is missing</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 frames</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 · %3</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not used</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 use</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 uses</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing shows it any more: it leaves the project with the next save.</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import…</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy image files into the project</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place on the Screen</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place the image on the screen (Enter)</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace File…</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show another picture wherever the image is used</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename the image (F2)</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the image from the project (Del)</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the elements that show the image</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No images yet. Drop image files here or on the screen, or import them.</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Images…</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used By</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: click or drag on the screen to place it; Esc to leave it.</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 problems were found.</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1[*] – Meridane Designer</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this message</source>
        <extracomment>app/MessageBar.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That is not possible here.</source>
        <extracomment>app/MessageBar.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit P&amp;roperties</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go to Canvas</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous Pane&amp;l</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Screen</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;vious Screen</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Project</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display:</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size:</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export QML…</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chec&amp;k Project</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The QML has been exported to &quot;%1&quot;.</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has not been exported.</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no preview of the project.</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has no problems.</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No temporary folder can be made for the preview: %1</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview cannot be started: %1: %2</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview has crashed: %1</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview has ended with an error: %1</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No problems.</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>app/ProjectDocument.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file. A project is kept in a folder of its own.</source>
        <extracomment>app/ProjectDocument.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty. Choose another name or an empty folder.</source>
        <extracomment>app/ProjectDocument.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (unreadable)</source>
        <extracomment>app/ProjectTreeModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plug-in serves the class &quot;%1&quot;. The element is kept as it is in the file.</source>
        <extracomment>app/ProjectTreeModel.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screens</source>
        <extracomment>app/ScreenTabs.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selection by one pixel, with Shift by ten</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the running drag back; leave the placing of an element</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move elements; on empty ground, select with a frame</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize, or move a point</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Click, Shift+Click</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an element to the selection or take it out</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space+Drag, middle button</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Wheel</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place the image in the middle of the view</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename the image; the elements that show it follow</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the image, unless an element shows it</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import the image files or the picture on the clipboard</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place the image on the screen, or give it to an element&apos;s source</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <extracomment>app/SiblingOrder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring Forward</source>
        <extracomment>app/SiblingOrder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Backward</source>
        <extracomment>app/SiblingOrder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send to Back</source>
        <extracomment>app/SiblingOrder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Order</source>
        <extracomment>app/SiblingOrder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the pointer on the screen, in pixels</source>
        <extracomment>app/StatusReadout.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x %1  y %2</source>
        <extracomment>app/StatusReadout.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoo&amp;m In</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zoom Out</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fit Screen</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App&amp;earance</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <extracomment>app/WindowPanels.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>app/ZoomBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom of the canvas</source>
        <extracomment>app/ZoomBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Screen</source>
        <extracomment>app/ZoomBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lays out the screens of small panel displays.</source>
        <extracomment>app/main.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project to open: its folder or its project.json.</source>
        <extracomment>app/main.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than 8 MiB</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is not in UTF-8</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it declares entities that cannot be followed</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element of it has too many attributes</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds no drawing</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its style sheets are too large</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element refers to itself</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many elements, or its references multiply them</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it refers to another file</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its entities are too large</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a gradient of it has too many colours</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a picture in it cannot be used: %1</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pictures in it are too large</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Left</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Right</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outline</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raised</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunken</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pad</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reflect</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boolean</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integer</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>String</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than 64 MiB</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it takes too long to paint</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the animation has too many frames</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a drawing needs a file name that ends in .svg</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pictures of this kind are not shown</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds no picture that can be read</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file does not say how large the picture is</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture has too many scans</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture is damaged</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x %1, y %2, %3 × %4</source>
        <extracomment>host/core/canvas/EditGesture.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; is already used.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no element class &quot;%1&quot;.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no property &quot;%2&quot;.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1 Elements</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 Elements</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be rotated.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a fixed point.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock %1 Elements</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock %1</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock %1 Elements</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock %1</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide %1 Elements</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide %1</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show %1 Elements</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show %1</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No element can show images. The plug-in with the visual elements was not found.</source>
        <extracomment>host/core/canvas/ImagePlacement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1 Images</source>
        <extracomment>host/core/canvas/ImagePlacement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Move %n Elements</source>
        <extracomment>host/core/canvas/MoveGesture.cpp</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Reshape %1</source>
        <extracomment>host/core/canvas/PointGesture.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize %1</source>
        <extracomment>host/core/canvas/ResizeGesture.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1°</source>
        <extracomment>host/core/canvas/RotateGesture.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate %1</source>
        <extracomment>host/core/canvas/RotateGesture.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag this point to rotate</source>
        <extracomment>host/core/canvas/SelectionHandles.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <extracomment>host/core/commands/AddObject.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be added here.</source>
        <extracomment>host/core/commands/AddObject.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename %1</source>
        <extracomment>host/core/commands/ChangeImage.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace %1</source>
        <extracomment>host/core/commands/ChangeImage.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>host/core/commands/ChangeImage.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1</source>
        <extracomment>host/core/commands/ChangeProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be changed to &quot;%2&quot;.</source>
        <extracomment>host/core/commands/ChangeProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <extracomment>host/core/commands/RemoveObject.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be moved there.</source>
        <extracomment>host/core/commands/ReparentObjects.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish what you are doing with the mouse first.</source>
        <extracomment>host/core/commands/UndoStack.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to change.</source>
        <extracomment>host/core/commands/UndoStack.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: width</source>
        <extracomment>host/core/editors/BorderEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: color</source>
        <extracomment>host/core/editors/BorderEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Font</source>
        <extracomment>host/core/editors/FontEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fonts (%1)</source>
        <extracomment>host/core/editors/FontEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy an image file into the project</source>
        <extracomment>host/core/editors/ImageSourceEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Image</source>
        <extracomment>host/core/editors/ImageSourceEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <extracomment>host/core/editors/LinkEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <extracomment>host/core/editors/LinkEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <extracomment>host/core/editors/PointEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <extracomment>host/core/editors/PointEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write points as &quot;x,y&quot; with one blank between them, for example &quot;0,0 50,0 25,40&quot;.</source>
        <extracomment>host/core/editors/PointListTextEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This value cannot be used.</source>
        <extracomment>host/core/editors/PropertyEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>°</source>
        <extracomment>host/core/editors/RotationEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: angle</source>
        <extracomment>host/core/editors/RotationEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The point that stays in place</source>
        <extracomment>host/core/editors/RotationEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid value for &quot;%2&quot;.</source>
        <extracomment>host/core/objects/DesignerObject.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <extracomment>host/core/objects/Group.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id must not be empty.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id must not be longer than 100 characters.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id must begin with a lower-case letter or an underscore.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id may hold only letters, digits and underscores.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id is a reserved word; choose another one.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size of a screen must be between 1 and 20000 px in both directions.</source>
        <extracomment>host/core/objects/Screen.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen</source>
        <extracomment>host/core/objects/Screen.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>host/core/objects/Screen.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>host/core/objects/Screen.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Element (%1)</source>
        <extracomment>host/core/objects/UnknownElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>host/core/objects/VisualElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <extracomment>host/core/objects/VisualElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visible</source>
        <extracomment>host/core/objects/VisualElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be used: the class &quot;%2&quot; exists already.</source>
        <extracomment>host/core/plugins/DesignerFactory.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be used: %2.</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a library that can be loaded (%1)</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no function qt_plugin_query_verification_data</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its verification data cannot be read</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it offers no element factory</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was built with Qt %1, this program with Qt %2</source>
        <extracomment>host/core/plugins/PluginVerification.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was built with debug=%1, this program with debug=%2</source>
        <extracomment>host/core/plugins/PluginVerification.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its build key is &quot;%1&quot;, that of this program &quot;%2&quot;</source>
        <extracomment>host/core/plugins/PluginVerification.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is smaller than %2, the smallest size that can be entered; the element may not be visible. Enlarge it or remove it.</source>
        <extracomment>host/core/project/EditorRange.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is below %2, the smallest value that can be entered. Correct it.</source>
        <extracomment>host/core/project/EditorRange.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is above %2, the largest value that can be entered. Correct it.</source>
        <extracomment>host/core/project/EditorRange.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;class&quot; must be &quot;%1&quot;, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;id&quot; is %1, but the file is that of the screen &quot;%2&quot;. The screen keeps the id &quot;%2&quot;; correct the file or its name.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a list, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; values are texts. It is taken as &quot;%3&quot;: put it in quotes.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not take an element of the class &quot;%2&quot;; it is kept, but not shown.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the name of a class.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element is kept, but not shown.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;, which is no id: %3</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; stands twice: at %2 and at %3.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element is called &quot;%1&quot; until you give it an id of its own.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Another program is saving this project. Try again when it is done.</source>
        <extracomment>host/core/project/FolderLock.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file cannot be read. Check its name and whether you may read it.</source>
        <extracomment>host/core/project/FontImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file is larger than 64 MiB. Choose a font with fewer characters.</source>
        <extracomment>host/core/project/FontImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: this is no font that can be used. Use TrueType or OpenType (TTF, OTF, TTC).</source>
        <extracomment>host/core/project/FontImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no image &quot;%1&quot; in this project.</source>
        <extracomment>host/core/project/ImageEdits.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <extracomment>host/core/project/ImageEdits.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed while it is used: by %2. Choose another image there first.</source>
        <extracomment>host/core/project/ImageEdits.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed while the screen &quot;%2&quot; cannot be read: it may use the image.</source>
        <extracomment>host/core/project/ImageEdits.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (%1);;All Files (*)</source>
        <extracomment>host/core/project/ImageFormats.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image needs a name.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an image. It must be a plain file name: no slashes, colons, control characters or &quot;..&quot;, no dot in front, no blanks at the ends.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name &quot;%1…&quot; is too long for a file.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name must go on ending in &quot;.%1&quot;: the ending tells what kind of picture the file holds.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is already an image &quot;%1&quot;.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; and the image &quot;%2&quot; differ only in capitals, which not every computer tells apart.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is already a file &quot;%1&quot; in the project&apos;s images folder. Choose another name.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: A merge conflict has not been resolved.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: This is not JSON: %2.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file must hold a JSON object, not %1.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: The key &quot;%2&quot; stands here for the second time (first in line %3); one of the two values would be lost. Remove one of them.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a boolean</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has changed since. Check again.</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move onto the screen</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another…</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Size</source>
        <extracomment>host/core/project/Project.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size of a display must be between 1 and %1 px in both directions.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has no screen. Add one.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is missing. Put it back, or take it out of the list in project.json.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds no font that can be used. Replace it.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element lies outside of its screen and cannot be seen. Move it onto the screen or remove it.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid value for &quot;%2&quot;. It is kept, but has no effect: correct it.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is neither in the project&apos;s fonts folder nor installed here; another one is shown in its place. Add its file to the project, or choose another font.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image file &quot;%1&quot; is missing. Put it back, or link another image.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image file &quot;%1&quot; cannot be shown (%2). Replace it, or link another image.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen cannot be shown; its file is left as it is until it has been corrected.</source>
        <extracomment>host/core/project/ProjectFiles.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of the screen is missing.</source>
        <extracomment>host/core/project/ProjectFiles.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This symbolic link leads nowhere.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This symbolic link leads out of the project&apos;s folder and is not followed.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project could not be made.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A project is a folder, and this is a file.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder holds no project: there is no file &quot;project.json&quot; in it.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;formatVersion&quot; must be a whole number from 1 to %1, not %2.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has format version %1; this program reads versions up to %2. Open it with a newer version of the program.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1[%2]&quot; is %3, which cannot be used as a name.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; names &quot;%2&quot; twice: at %3 and at %4. Remove one.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not listed in project.json and is left alone. Add &quot;%1&quot; to &quot;screens&quot; there, or remove the file.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen cannot be renamed to &quot;%1&quot; while its file cannot be read.</source>
        <extracomment>host/core/project/ProjectWriter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is already a file of this name, and it does not belong to the project. Move it away, or save into another folder.</source>
        <extracomment>host/core/project/ProjectWriter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The groups of the screen are nested too deeply for a file.</source>
        <extracomment>host/core/project/ProjectWriter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a symbolic link, and nothing is written through it.</source>
        <extracomment>host/core/project/ResourceFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file is larger than 64 MiB. Make the image smaller.</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file cannot be read (%2).</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a packed drawing cannot be used. Unpack it into an SVG file.</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: this is no image that can be read. Use PNG, JPEG, BMP, GIF, WebP or SVG.</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: this image cannot be used (%2).</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty or cannot be written as PNG</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This picture cannot be used (%1).</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: A save was interrupted, and what it left cannot be understood. Look at the files in this folder (&quot;old&quot; holds the project as it was), put them where they belong and remove the folder.</source>
        <extracomment>host/core/project/SaveRecovery.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new content is in place and could not be taken back, but it is not certain that the disk keeps it.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was changed by another program after it had been opened here. Save into another folder to keep both versions.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This symbolic link is not replaced.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This symbolic link leads elsewhere; nothing is saved through it.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What had been replaced until then is put back when the project is next opened (%1).</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known below &quot;%2&quot; of the class &quot;%3&quot;. It is kept, but has no effect.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; is not known. It is kept, but has no effect.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element cannot be made from what the file says. It is kept, but neither shown nor exported: correct it in the file, or remove it.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No loaded plug-in serves the class &quot;%1&quot;. The element is kept, but neither shown nor exported: install the plug-in or remove the element.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bold</source>
        <extracomment>host/core/properties/FontProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>normal</source>
        <extracomment>host/core/properties/FontProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A display draws a font normal or bold: the weight %1 is shown as %2.</source>
        <extracomment>host/core/properties/FontProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be linked here.</source>
        <extracomment>host/core/properties/LinkProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in this project.</source>
        <extracomment>host/core/properties/LinkProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; is used more than once.</source>
        <extracomment>host/core/properties/ObjectListProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an object or of a file in the project&apos;s images folder.</source>
        <extracomment>host/core/properties/PropertyValidators.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the display a width and a height above 0.</source>
        <extracomment>host/core/qml/ExportContent.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A screen that cannot be read cannot be exported.</source>
        <extracomment>host/core/qml/ExportContent.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The font file cannot be read. %1</source>
        <extracomment>host/core/qml/ExportContent.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder holds files that no export wrote. Choose an empty folder or a new one.</source>
        <extracomment>host/core/qml/ExportFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No export wrote this file. Move it away, or export into another folder.</source>
        <extracomment>host/core/qml/ExportFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was changed after it had been exported. Move it away, or export into another folder.</source>
        <extracomment>host/core/qml/ExportFolder.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder belongs to the project itself. Export into another one.</source>
        <extracomment>host/core/qml/QmlExporter.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset %1</source>
        <extracomment>host/core/sheet/FieldEdits.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 follows from other values: reset those.</source>
        <extracomment>host/core/sheet/FieldEdits.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; is no value for %2.</source>
        <extracomment>host/core/sheet/FieldEdits.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored value &quot;%1&quot; is not valid.</source>
        <extracomment>host/core/sheet/PropertyField.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>different values</source>
        <extracomment>host/core/sheet/PropertyRow.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no screen yet. Add one, and its properties appear here.</source>
        <extracomment>host/core/sheet/PropertySheet.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset Section</source>
        <extracomment>host/core/sheet/SectionHeader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open section</source>
        <extracomment>host/core/sheet/SectionHeader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folded section</source>
        <extracomment>host/core/sheet/SectionHeader.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id</source>
        <extracomment>host/core/sheet/SheetHeading.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name by which links and the exported screen know the object</source>
        <extracomment>host/core/sheet/SheetHeading.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 objects</source>
        <extracomment>host/core/sheet/SheetHeading.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a property</source>
        <extracomment>host/core/sheet/SheetSearch.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the properties whose name or value contains what you type here</source>
        <extracomment>host/core/sheet/SheetSearch.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Geometry</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected character &quot;%1&quot;.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The result is too large.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number cannot be divided by zero.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A closing parenthesis is missing.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is missing.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number can have one decimal sign only.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number is too large or too small.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen color</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick from screen</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a color from the screen</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent color</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font family</source>
        <extracomment>host/core/widgets/FontFamilyBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed.</source>
        <extracomment>host/core/widgets/FontFamilyBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overline</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strikeout</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thin</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extra light</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semi-bold</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extra bold</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Word spacing</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pt</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>px</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the font size</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font weight</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy a font file into the project</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color as text</source>
        <extracomment>host/core/widgets/HexColorField.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue and saturation</source>
        <extracomment>host/core/widgets/HueSaturationField.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue %1°, saturation %2%</source>
        <extracomment>host/core/widgets/HueSaturationField.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep ratio</source>
        <extracomment>host/core/widgets/LockToggle.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the ratio of width to height</source>
        <extracomment>host/core/widgets/LockToggle.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top left</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed point</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>host/core/widgets/SizeWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H</source>
        <extracomment>host/core/widgets/SizeWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VisualDesigner</name>
    <message>
        <source>Conical Gradient Element</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>°</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Angle (Clockwise)</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Angle</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center X</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center Y</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stop at %1 cannot be drawn: positions are from 0 to 1. Correct or remove it.</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient Element</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient Stops</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove this gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the new gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of the new gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add this gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of gradient stop %1</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of gradient stop %1</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove gradient stop %1</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These elements have different gradient stops. Select one of them to edit its gradient stops.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These gradient stops cannot be read.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient stops in this list: %1. Lists of %2 to %3 gradient stops can be edited here.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only gradient stops between 0% and 100% can be edited here.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gradient stops must have at least 2 stops.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gradient stops cannot have more than %1 stops.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate position values found.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient colors cannot be all transparent.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient colors cannot be all the same.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient preview</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify Gradient Stops</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Gradient Stop</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient stop at position %1% already exists.</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The X and Y must be between 0% and 100%.</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The start position must be different from the final stop position.</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear Gradient Element</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Final Stop</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start X</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Y</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Final Stop X</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Final Stop Y</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>gradients/OutlineProperty.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path Element</source>
        <extracomment>gradients/PathElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>gradients/PathElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radial Gradient Element</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the given focal point is outside the circle defined by the center point
and radius, it will be re-adjusted to lie at a point on the circle where it
intersects with the line from the center to the focal point</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Point</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spread</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Point X</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Point Y</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag this point to resize</source>
        <extracomment>host/core/canvas/GraphicsItem.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag this line to resize</source>
        <extracomment>host/core/canvas/GraphicsItem.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>host/core/canvas/GraphicsItem.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintain aspect ratio when resizing by mouse or through the editor</source>
        <extracomment>host/core/objects/ElementProperties.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <extracomment>host/core/objects/ElementProperties.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border</source>
        <extracomment>host/core/objects/ElementProperties.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set to Image Size</source>
        <extracomment>images/ImageSizeEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag this point (#%1) to reshape</source>
        <extracomment>lines/GraphicsIrregularPolygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the start point.</source>
        <extracomment>lines/GraphicsLine.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the end point.</source>
        <extracomment>lines/GraphicsLine.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A polygon needs at least %1 points and this one has %2: nothing is drawn. Add points or remove the element.</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list has %1 points. It is drawn and kept, but only lists of up to %2 points can be edited point by point: leave points out where they are not needed.</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon (Irregular)</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point List</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle (Clockwise)</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thickness</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Point List</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These elements have different points. Select one of them to edit its points.</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These points cannot be read.</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points in this list: %1. Lists of %2 to %3 points can be edited here.</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a square</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a pentagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a hexagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a heptagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form an octagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a nonagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a decagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a hendecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a dodecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a tridecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a tetradecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a pentadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a hexadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form a heptadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form an octadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form an enneadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new point to form an icosagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size is too small.</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a point</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X:</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y:</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X of point %1</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y of point %1</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove this point</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove point %1</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The point&apos;s position uses an independent set of coordinates, 
it is not related to the polygon&apos;s position on canvas</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate Points Clockwise</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You cannot have more than %1 points</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <extracomment>shapes/Ellipse.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border Width</source>
        <extracomment>shapes/Ellipse.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border Color</source>
        <extracomment>shapes/Ellipse.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon (Regular)</source>
        <extracomment>shapes/Polygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edges</source>
        <extracomment>shapes/Polygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge Length</source>
        <extracomment>shapes/Polygon.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The corner radius must be between 0 and 100.</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The corner radius must be smaller than or equal to %1 px.</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the top left corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the top</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the top right corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the left</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the center</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the right</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the bottom left corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the bottom center</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align text to the bottom right corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Box</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Alignment</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Style</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal Alignment</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Alignment</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style Color</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Word Spacing</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overline</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strikeout</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font Size</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter Spacing</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font Family</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

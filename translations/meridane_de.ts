<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Core</name>
    <message>
        <source>Add a screen</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation>Bildschirm hinzufügen</translation>
    </message>
    <message>
        <source>Canvas</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>This project has no screen yet.</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation>Dieses Projekt hat noch keinen Bildschirm.</translation>
    </message>
    <message>
        <source>Add a Screen</source>
        <extracomment>app/CanvasPanel.cpp</extracomment>
        <translation>Bildschirm hinzufügen</translation>
    </message>
    <message>
        <source>create start project</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>anlegen erstellen beginnen projekt</translation>
    </message>
    <message>
        <source>load project folder</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>laden projekt ordner</translation>
    </message>
    <message>
        <source>store write disk</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>sichern schreiben festplatte</translation>
    </message>
    <message>
        <source>store copy elsewhere</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>sichern kopie woanders</translation>
    </message>
    <message>
        <source>leave project</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>verlassen projekt</translation>
    </message>
    <message>
        <source>exit end leave</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>ende verlassen schließen</translation>
    </message>
    <message>
        <source>welcome home examples recent</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>willkommen beispiele zuletzt</translation>
    </message>
    <message>
        <source>add picture photo icon bitmap resource</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>hinzufügen bild foto symbol grafik datei</translation>
    </message>
    <message>
        <source>generate code build output display</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>erzeugen code ausgabe anzeige</translation>
    </message>
    <message>
        <source>run play start simulate display</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>starten abspielen simulieren anzeige</translation>
    </message>
    <message>
        <source>problems errors warnings validate lint</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>probleme fehler warnungen überprüfen</translation>
    </message>
    <message>
        <source>back revert</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>zurück zurücknehmen</translation>
    </message>
    <message>
        <source>again repeat forward</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>nochmal erneut vorwärts</translation>
    </message>
    <message>
        <source>clipboard move</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>zwischenablage verschieben</translation>
    </message>
    <message>
        <source>clipboard</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>zwischenablage</translation>
    </message>
    <message>
        <source>clipboard insert</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>zwischenablage einsetzen</translation>
    </message>
    <message>
        <source>clone double copy</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>klonen verdoppeln kopie</translation>
    </message>
    <message>
        <source>remove erase clear</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>entfernen tilgen leeren</translation>
    </message>
    <message>
        <source>mark everything</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>markieren alle</translation>
    </message>
    <message>
        <source>name id identifier</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>name id bezeichner</translation>
    </message>
    <message>
        <source>page create</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>seite anlegen</translation>
    </message>
    <message>
        <source>order top above z-order stack layer</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>reihenfolge oben darüber stapel ebene</translation>
    </message>
    <message>
        <source>order up above z-order stack layer</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>reihenfolge höher darüber stapel ebene</translation>
    </message>
    <message>
        <source>order down below z-order stack layer</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>reihenfolge tiefer darunter stapel ebene</translation>
    </message>
    <message>
        <source>order bottom below z-order stack layer background</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>reihenfolge unten darunter stapel ebene hintergrund</translation>
    </message>
    <message>
        <source>larger bigger magnify scale</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>größer lupe zoom skalieren</translation>
    </message>
    <message>
        <source>smaller scale</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>kleiner zoom skalieren</translation>
    </message>
    <message>
        <source>zoom 100% original 1:1 scale</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>zoom 100 % original 1:1 skalieren</translation>
    </message>
    <message>
        <source>zoom whole all scale window</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>zoom ganz alles skalieren fenster</translation>
    </message>
    <message>
        <source>theme colors system</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>design farben system</translation>
    </message>
    <message>
        <source>theme colors bright day</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>design farben hell tag</translation>
    </message>
    <message>
        <source>theme colors night</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>design farben dunkel nacht</translation>
    </message>
    <message>
        <source>panels windows docks default restore</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>bereiche fenster standard wiederherstellen</translation>
    </message>
    <message>
        <source>values inspector sheet attributes</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>werte inspektor attribute</translation>
    </message>
    <message>
        <source>focus window dock</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>fokus fenster bereich</translation>
    </message>
    <message>
        <source>page tab</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>seite reiter</translation>
    </message>
    <message>
        <source>keys hotkeys bindings customize</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>tasten tastenkombination belegung anpassen</translation>
    </message>
    <message>
        <source>manual documentation</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>anleitung dokumentation</translation>
    </message>
    <message>
        <source>version</source>
        <extracomment>app/CommandKeywords.cpp</extracomment>
        <translation>version</translation>
    </message>
    <message>
        <source>Not possible at the moment</source>
        <extracomment>app/CommandModel.cpp</extracomment>
        <translation>Zurzeit nicht möglich</translation>
    </message>
    <message>
        <source>No command has a name like this.</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation>Kein Befehl heißt so.</translation>
    </message>
    <message>
        <source>Commands</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Find a command, screen or element</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation>Befehl, Bildschirm oder Element suchen</translation>
    </message>
    <message>
        <source>Find a command</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>Commands that were found</source>
        <extracomment>app/CommandPalette.cpp</extracomment>
        <translation>Gefundene Befehle</translation>
    </message>
    <message>
        <source>%1 › %2</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>%1 › %2</translation>
    </message>
    <message>
        <source>Select %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>%1 auswählen</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>%1 einfügen</translation>
    </message>
    <message>
        <source>Elements</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>add new place element</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>hinzufügen neu platzieren element</translation>
    </message>
    <message>
        <source>Go to Screen %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>Zu Bildschirm %1 wechseln</translation>
    </message>
    <message>
        <source>Project</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>page show open</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>seite zeigen öffnen</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>recent project load</source>
        <extracomment>app/CommandSource.cpp</extracomment>
        <translation>zuletzt projekt laden</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes of &quot;%1&quot;?</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>What is not saved is lost when the project is closed.</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Was nicht gespeichert ist, geht beim Schließen des Projekts verloren.</translation>
    </message>
    <message>
        <source>Open Project</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Meridane projects (project.json)</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Meridane-Projekte (project.json)</translation>
    </message>
    <message>
        <source>Save Project As a New Folder</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Projekt als neuen Ordner speichern</translation>
    </message>
    <message>
        <source>Export QML Into an Empty Folder or an Earlier Export</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>QML in einen leeren Ordner oder einen früheren Export exportieren</translation>
    </message>
    <message>
        <source>Import Images</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Bilder importieren</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot;</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>„%1“ ersetzen</translation>
    </message>
    <message>
        <source>Un&amp;do</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>Aussch&amp;neiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>Add &amp;New Screen</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>Bildschirm &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Bring to &amp;Front</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>Ganz &amp;nach vorn</translation>
    </message>
    <message>
        <source>Brin&amp;g Forward</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>Eine Ebene na&amp;ch vorn</translation>
    </message>
    <message>
        <source>Send Back&amp;ward</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Eine Ebene nach hinten</translation>
    </message>
    <message>
        <source>Send to Bac&amp;k</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>Ganz nach &amp;hinten</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Un&amp;do %1</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>There is no screen to add to.</source>
        <extracomment>host/core/arrange/ElementClipboard.cpp</extracomment>
        <translation>Es gibt keinen Bildschirm zum Hinzufügen.</translation>
    </message>
    <message>
        <source>The clipboard holds no elements.</source>
        <extracomment>host/core/arrange/ElementClipboard.cpp</extracomment>
        <translation>Die Zwischenablage enthält keine Elemente.</translation>
    </message>
    <message>
        <source>No elements. The plug-in with the visual elements was not found.</source>
        <extracomment>app/ElementPalette.cpp</extracomment>
        <translation>Keine Elemente. Das Plug-in mit den visuellen Elementen wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>%1: drag it onto the screen, or click it and then the place for it.</source>
        <extracomment>app/ElementPalette.cpp</extracomment>
        <translation>%1: auf den Bildschirm ziehen oder erst das Element und dann seine Stelle anklicken.</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>&amp;Neu…</translation>
    </message>
    <message>
        <source>O&amp;pen…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>&amp;Öffnen…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Spei&amp;chern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Speic&amp;hern unter…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Been&amp;den</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>The project has not been opened.</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Das Projekt wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>The project has not been saved. %1</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Das Projekt wurde nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Save As…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>&amp;Find Command…</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>Befehl su&amp;chen…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>&amp;Tastenkürzel…</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;About Meridane Designer</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>&amp;Über Meridane Designer</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>Das Handbuch ist nicht installiert.</translation>
    </message>
    <message>
        <source>No program shows the user guide. It is in &quot;%1&quot;.</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>Kein Programm zeigt das Handbuch an. Es liegt in „%1“.</translation>
    </message>
    <message>
        <source>About Meridane Designer</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>Über Meridane Designer</translation>
    </message>
    <message>
        <source>Meridane Designer %1</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>Meridane Designer %1</translation>
    </message>
    <message>
        <source>Lays out the screens of small panel displays and exports them as QML.

Running on Qt %1.</source>
        <extracomment>app/HelpActions.cpp</extracomment>
        <translation>Gestaltet die Bildschirme kleiner Anzeigen und exportiert sie als QML.

Läuft mit Qt %1.</translation>
    </message>
    <message>
        <source>Beginning</source>
        <extracomment>app/HistoryModel.cpp</extracomment>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <extracomment>app/HistoryModel.cpp</extracomment>
        <translation>%1 (gespeichert)</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>app/HistoryPanel.cpp</extracomment>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Import I&amp;mages…</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation>Bilder i&amp;mportieren…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is called &quot;%2&quot; now: the new picture is of another format.</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation>„%1“ heißt jetzt „%2“: Das neue Bild hat ein anderes Format.</translation>
    </message>
    <message>
        <source>Show Uses</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Verwendungen zeigen</translation>
    </message>
    <message>
        <source>pasted</source>
        <extracomment>app/ImageData.cpp</extracomment>
        <translation>zwischenablage</translation>
    </message>
    <message>
        <source>Name of the image</source>
        <extracomment>app/ImageDelegate.cpp</extracomment>
        <translation>Name des Bildes</translation>
    </message>
    <message>
        <source>Images</source>
        <extracomment>app/ImageList.cpp</extracomment>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>cannot be shown</source>
        <extracomment>app/FontDelegate.cpp</extracomment>
        <translation>nicht darstellbar</translation>
    </message>
    <message>
        <source>the file is missing</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation>die Datei fehlt</translation>
    </message>
    <message>
        <source>%1 × %2 · %3</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation>%1 × %2 · %3</translation>
    </message>
    <message>
        <source>not used</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation>nicht verwendet</translation>
    </message>
    <message>
        <source>Nothing shows it any more: it leaves the project with the next save.</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation>Nichts zeigt es mehr: Mit dem nächsten Speichern verlässt es das Projekt.</translation>
    </message>
    <message>
        <source>Import…</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Copy image files into the project</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Bilddateien in das Projekt kopieren</translation>
    </message>
    <message>
        <source>Place on the Screen</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Auf dem Bildschirm platzieren</translation>
    </message>
    <message>
        <source>Place the image on the screen (Enter)</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Das Bild auf dem Bildschirm platzieren (Eingabe)</translation>
    </message>
    <message>
        <source>Replace File…</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Datei ersetzen…</translation>
    </message>
    <message>
        <source>Show another picture wherever the image is used</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Überall, wo das Bild verwendet wird, ein anderes zeigen</translation>
    </message>
    <message>
        <source>Rename</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Rename the image (F2)</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Das Bild umbenennen (F2)</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the image from the project (Del)</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Das Bild aus dem Projekt entfernen (Entf)</translation>
    </message>
    <message>
        <source>Select the elements that show the image</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Die Elemente auswählen, die das Bild zeigen</translation>
    </message>
    <message>
        <source>No images yet. Drop image files here or on the screen, or import them.</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Noch keine Bilder. Bilddateien hierher oder auf den Bildschirm ziehen oder importieren.</translation>
    </message>
    <message>
        <source>Import Images…</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Bilder importieren…</translation>
    </message>
    <message>
        <source>Used By</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>Verwendet von</translation>
    </message>
    <message>
        <source>Properties</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Problems</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>app/MainWindowMenus.cpp</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>app/MainWindowMenus.cpp</extracomment>
        <translation>B&amp;earbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>app/MainWindowMenus.cpp</extracomment>
        <translation>Ansi&amp;cht</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <extracomment>app/MainWindowMenus.cpp</extracomment>
        <translation>Berei&amp;che</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>app/MainWindowMenus.cpp</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <extracomment>app/MainWindowMenus.cpp</extracomment>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>%1: click or drag on the screen to place it; Esc to leave it.</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation>%1: zum Platzieren auf den Bildschirm klicken oder dort aufziehen; mit Esc abbrechen.</translation>
    </message>
    <message>
        <source>Details</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation>Details</translation>
    </message>
    <message>
        <source>%1[*] – Meridane Designer</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation>%1[*] – Meridane Designer</translation>
    </message>
    <message>
        <source>Close this message</source>
        <extracomment>app/MessageBar.cpp</extracomment>
        <translation>Diese Meldung schließen</translation>
    </message>
    <message>
        <source>That is not possible here.</source>
        <extracomment>app/MessageBar.cpp</extracomment>
        <translation>Das ist hier nicht möglich.</translation>
    </message>
    <message>
        <source>Edit P&amp;roperties</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation>Eigenschaf&amp;ten bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Go to Canvas</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation>&amp;Zur Zeichenfläche</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation>Zum n&amp;ächsten Bereich</translation>
    </message>
    <message>
        <source>Previous Pane&amp;l</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation>Vori&amp;ger Bereich</translation>
    </message>
    <message>
        <source>&amp;Next Screen</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation>&amp;Nächster Bildschirm</translation>
    </message>
    <message>
        <source>Pre&amp;vious Screen</source>
        <extracomment>app/NavigationActions.cpp</extracomment>
        <translation>Voriger Bildschir&amp;m</translation>
    </message>
    <message>
        <source> px</source>
        <extracomment>app/GridDialog.cpp</extracomment>
        <translation> px</translation>
    </message>
    <message>
        <source>Width</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>New Project</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Name:</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Display:</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Anzeige:</translation>
    </message>
    <message>
        <source>Size:</source>
        <extracomment>app/NewProjectDialog.cpp</extracomment>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>&amp;Export QML…</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>&amp;QML exportieren…</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Chec&amp;k Project</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>&amp;Projekt prüfen</translation>
    </message>
    <message>
        <source>The QML has been exported to &quot;%1&quot;.</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>Das QML wurde nach „%1“ exportiert.</translation>
    </message>
    <message>
        <source>The project has not been exported.</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>Das Projekt wurde nicht exportiert.</translation>
    </message>
    <message>
        <source>There is no preview of the project.</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>Es gibt keine Vorschau des Projekts.</translation>
    </message>
    <message>
        <source>The project has no problems.</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>Das Projekt hat keine Probleme.</translation>
    </message>
    <message>
        <source>No temporary folder can be made for the preview: %1</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation>Für die Vorschau lässt sich kein temporärer Ordner anlegen: %1</translation>
    </message>
    <message>
        <source>The preview cannot be started: %1: %2</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation>Die Vorschau lässt sich nicht starten: %1: %2</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <extracomment>app/LiveDisplay.cpp</extracomment>
        <translation>ohne Angabe eines Grundes</translation>
    </message>
    <message>
        <source>The preview has crashed: %1</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation>Die Vorschau ist abgestürzt: %1</translation>
    </message>
    <message>
        <source>The preview has ended with an error: %1</source>
        <extracomment>app/PreviewRunner.cpp</extracomment>
        <translation>Die Vorschau endete mit einem Fehler: %1</translation>
    </message>
    <message>
        <source>Problem</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Object</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>No problems.</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Keine Probleme.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>app/ProjectDocument.cpp</extracomment>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file. A project is kept in a folder of its own.</source>
        <extracomment>app/ProjectDocument.cpp</extracomment>
        <translation>„%1“ ist eine Datei. Ein Projekt liegt in einem eigenen Ordner.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty. Choose another name or an empty folder.</source>
        <extracomment>app/ProjectDocument.cpp</extracomment>
        <translation>Der Ordner „%1“ ist nicht leer. Einen anderen Namen oder einen leeren Ordner wählen.</translation>
    </message>
    <message>
        <source>%1 (unreadable)</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>%1 (nicht lesbar)</translation>
    </message>
    <message>
        <source>No plug-in serves the class &quot;%1&quot;. The element is kept as it is in the file.</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Kein Plug-in kennt die Klasse „%1“. Das Element bleibt, wie es in der Datei steht.</translation>
    </message>
    <message>
        <source>Screens</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Move the selection by one pixel, with Shift by ten</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Die Auswahl um ein Pixel verschieben, mit Umschalt um zehn</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Take the running drag back; leave the placing of an element</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Das laufende Ziehen zurücknehmen; das Platzieren eines Elements abbrechen</translation>
    </message>
    <message>
        <source>Drag</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Move elements; on empty ground, select with a frame</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Elemente verschieben; auf leerem Grund mit einem Rahmen auswählen</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Einen Griff ziehen</translation>
    </message>
    <message>
        <source>Resize, or move a point</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Größe ändern oder einen Punkt verschieben</translation>
    </message>
    <message>
        <source>Shift+Click</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Umschalt+Klick</translation>
    </message>
    <message>
        <source>Add an element to the selection or take it out</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Ein Element zur Auswahl hinzufügen oder aus ihr entfernen</translation>
    </message>
    <message>
        <source>Ctrl+Click</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Strg+Klick</translation>
    </message>
    <message>
        <source>Select what lies beneath the selected element</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Auswählen, was unter dem ausgewählten Element liegt</translation>
    </message>
    <message>
        <source>Space+Drag, middle button</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Leertaste+Ziehen, mittlere Maustaste</translation>
    </message>
    <message>
        <source>Scroll</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Ansicht verschieben</translation>
    </message>
    <message>
        <source>Ctrl+Wheel</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Strg+Mausrad</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Am Mauszeiger zoomen</translation>
    </message>
    <message>
        <source>Enter</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Place the image in the middle of the view</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Das Bild in der Mitte der Ansicht platzieren</translation>
    </message>
    <message>
        <source>F2</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>F2</translation>
    </message>
    <message>
        <source>Rename the image; the elements that show it follow</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Das Bild umbenennen; die Elemente, die es zeigen, folgen</translation>
    </message>
    <message>
        <source>Del</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Remove the image, unless an element shows it</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Das Bild entfernen, wenn kein Element es zeigt</translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Strg+V</translation>
    </message>
    <message>
        <source>Import the image files or the picture on the clipboard</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Die Bilddateien oder das Bild der Zwischenablage importieren</translation>
    </message>
    <message>
        <source>Place the image on the screen, or give it to an element&apos;s source</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Das Bild auf dem Bildschirm platzieren oder als Quelle eines Elements einsetzen</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <extracomment>host/core/arrange/SiblingOrder.cpp</extracomment>
        <translation>Ganz nach vorn</translation>
    </message>
    <message>
        <source>Bring Forward</source>
        <extracomment>host/core/arrange/SiblingOrder.cpp</extracomment>
        <translation>Eine Ebene nach vorn</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <extracomment>host/core/arrange/SiblingOrder.cpp</extracomment>
        <translation>Eine Ebene nach hinten</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <extracomment>host/core/arrange/SiblingOrder.cpp</extracomment>
        <translation>Ganz nach hinten</translation>
    </message>
    <message>
        <source>Change Order</source>
        <extracomment>host/core/arrange/SiblingOrder.cpp</extracomment>
        <translation>Reihenfolge ändern</translation>
    </message>
    <message>
        <source>Position of the pointer on the screen, in pixels</source>
        <extracomment>app/StatusReadout.cpp</extracomment>
        <translation>Position des Mauszeigers auf dem Bildschirm in Pixeln</translation>
    </message>
    <message>
        <source>x %1  y %2</source>
        <extracomment>app/StatusReadout.cpp</extracomment>
        <translation>x %1  y %2</translation>
    </message>
    <message>
        <source>Zoo&amp;m In</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>Vergrö&amp;ßern</translation>
    </message>
    <message>
        <source>&amp;Zoom Out</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>Originalgr&amp;öße</translation>
    </message>
    <message>
        <source>&amp;Fit Screen</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>Bildschirm ein&amp;passen</translation>
    </message>
    <message>
        <source>App&amp;earance</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>&amp;Wie der Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <extracomment>app/ViewActions.cpp</extracomment>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <extracomment>app/WindowPanels.cpp</extracomment>
        <translation>&amp;Anordnung zurücksetzen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>app/ZoomBox.cpp</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom of the canvas</source>
        <extracomment>app/ZoomBox.cpp</extracomment>
        <translation>Zoom der Zeichenfläche</translation>
    </message>
    <message>
        <source>Fit Screen</source>
        <extracomment>app/ZoomBox.cpp</extracomment>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Lays out the screens of small panel displays.</source>
        <extracomment>app/main.cpp</extracomment>
        <translation>Gestaltet die Bildschirme kleiner Anzeigen.</translation>
    </message>
    <message>
        <source>The project to open: its folder or its project.json.</source>
        <extracomment>app/main.cpp</extracomment>
        <translation>Das Projekt, das geöffnet wird: sein Ordner oder seine project.json.</translation>
    </message>
    <message>
        <source>the file is larger than 8 MiB</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>die Datei ist größer als 8 MiB</translation>
    </message>
    <message>
        <source>the file is not in UTF-8</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>die Datei ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>it declares entities that cannot be followed</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>sie vereinbart Entitäten, denen sich nicht folgen lässt</translation>
    </message>
    <message>
        <source>an element of it has too many attributes</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>eines ihrer Elemente hat zu viele Attribute</translation>
    </message>
    <message>
        <source>the file holds no drawing</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>die Datei enthält keine Zeichnung</translation>
    </message>
    <message>
        <source>its style sheets are too large</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>ihre Stylesheets sind zu groß</translation>
    </message>
    <message>
        <source>an element refers to itself</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>ein Element verweist auf sich selbst</translation>
    </message>
    <message>
        <source>it has too many elements, or its references multiply them</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>sie hat zu viele Elemente, oder ihre Verweise vervielfachen sie</translation>
    </message>
    <message>
        <source>it refers to another file</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>sie verweist auf eine andere Datei</translation>
    </message>
    <message>
        <source>its entities are too large</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>ihre Entitäten sind zu groß</translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>ihre Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>a gradient of it has too many colours</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>einer ihrer Verläufe hat zu viele Farben</translation>
    </message>
    <message>
        <source>a picture in it cannot be used: %1</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>ein Bild darin ist nicht verwendbar: %1</translation>
    </message>
    <message>
        <source>the pictures in it are too large</source>
        <extracomment>host/common/DrawingCheck.cpp</extracomment>
        <translation>die Bilder darin sind zu groß</translation>
    </message>
    <message>
        <source>Top Left</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top Right</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Standard</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Outline</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Raised</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Erhaben</translation>
    </message>
    <message>
        <source>Sunken</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Vertieft</translation>
    </message>
    <message>
        <source>Pad</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Randfarbe</translation>
    </message>
    <message>
        <source>Reflect</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Repeat</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Wiederholt</translation>
    </message>
    <message>
        <source>Boolean</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Wahrheitswert</translation>
    </message>
    <message>
        <source>Integer</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Real</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Kommazahl</translation>
    </message>
    <message>
        <source>String</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>host/common/EnumHelper.cpp</extracomment>
        <translation>Liste</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation>dies ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is larger than 64 MiB</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation>die Datei ist größer als 64 MiB</translation>
    </message>
    <message>
        <source>it takes too long to paint</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation>das Zeichnen dauert zu lange</translation>
    </message>
    <message>
        <source>the animation has too many frames</source>
        <extracomment>host/common/PictureFile.cpp</extracomment>
        <translation>die Animation hat zu viele Einzelbilder</translation>
    </message>
    <message>
        <source>a drawing needs a file name that ends in .svg</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation>eine Zeichnung braucht einen Dateinamen, der auf .svg endet</translation>
    </message>
    <message>
        <source>pictures of this kind are not shown</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation>Bilder dieser Art werden nicht dargestellt</translation>
    </message>
    <message>
        <source>the file holds no picture that can be read</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation>die Datei enthält kein lesbares Bild</translation>
    </message>
    <message>
        <source>the file does not say how large the picture is</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation>die Datei gibt nicht an, wie groß das Bild ist</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation>das Bild ist zu groß</translation>
    </message>
    <message>
        <source>the picture has too many scans</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation>das Bild hat zu viele Durchgänge</translation>
    </message>
    <message>
        <source>the picture is damaged</source>
        <extracomment>host/common/RasterFile.cpp</extracomment>
        <translation>das Bild ist beschädigt</translation>
    </message>
    <message>
        <source>x %1, y %2, %3 × %4</source>
        <extracomment>host/core/accessibility/AccessibleElement.cpp</extracomment>
        <translation>x %1, y %2, %3 × %4</translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; is already used.</source>
        <extracomment>host/core/arrange/Grouping.cpp</extracomment>
        <translation>Die ID „%1“ wird schon verwendet.</translation>
    </message>
    <message>
        <source>There is no element class &quot;%1&quot;.</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>Es gibt keine Elementklasse „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no property &quot;%2&quot;.</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>„%1“ hat keine Eigenschaft „%2“.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <extracomment>host/core/canvas/MoveGesture.cpp</extracomment>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be rotated.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation>„%1“ lässt sich nicht drehen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a fixed point.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation>„%1“ ist kein Fixpunkt.</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>%1 sperren</translation>
    </message>
    <message>
        <source>Unlock %1</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>%1 entsperren</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>%1 ausblenden</translation>
    </message>
    <message>
        <source>Show %1</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>%1 einblenden</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>No element can show images. The plug-in with the visual elements was not found.</source>
        <extracomment>host/core/canvas/ImagePlacement.cpp</extracomment>
        <translation>Kein Element kann Bilder zeigen. Das Plug-in mit den visuellen Elementen wurde nicht gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>Move %n Elements</source>
        <extracomment>host/core/canvas/MoveGesture.cpp</extracomment>
        <translation>
            <numerusform>%n Element verschieben</numerusform>
            <numerusform>%n Elemente verschieben</numerusform>
        </translation>
    </message>
    <message>
        <source>Reshape %1</source>
        <extracomment>host/core/canvas/PointGesture.cpp</extracomment>
        <translation>%1 umformen</translation>
    </message>
    <message>
        <source>Resize %1</source>
        <extracomment>host/core/canvas/ResizeGesture.cpp</extracomment>
        <translation>Größe von %1 ändern</translation>
    </message>
    <message>
        <source>%1°</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>%1°</translation>
    </message>
    <message>
        <source>Rotate %1</source>
        <extracomment>host/core/canvas/RotateGesture.cpp</extracomment>
        <translation>%1 drehen</translation>
    </message>
    <message>
        <source>Drag this point to rotate</source>
        <extracomment>host/core/canvas/SelectionHandles.cpp</extracomment>
        <translation>Diesen Punkt ziehen, um zu drehen</translation>
    </message>
    <message>
        <source>Add %1</source>
        <extracomment>host/core/commands/AddObject.cpp</extracomment>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be added here.</source>
        <extracomment>host/core/commands/AddObject.cpp</extracomment>
        <translation>„%1“ lässt sich hier nicht hinzufügen.</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <extracomment>host/core/commands/ChangeImage.cpp</extracomment>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Replace %1</source>
        <extracomment>host/core/commands/ChangeImage.cpp</extracomment>
        <translation>%1 ersetzen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>host/core/commands/ChangeImage.cpp</extracomment>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Change %1</source>
        <extracomment>host/core/commands/ChangeProperty.cpp</extracomment>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be changed to &quot;%2&quot;.</source>
        <extracomment>host/core/commands/ChangeProperties.cpp</extracomment>
        <translation>„%1“ lässt sich nicht in „%2“ ändern.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <extracomment>host/core/commands/RemoveObject.cpp</extracomment>
        <translation>„%1“ lässt sich nicht entfernen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be moved there.</source>
        <extracomment>host/core/commands/ReparentObjects.cpp</extracomment>
        <translation>„%1“ lässt sich nicht dorthin verschieben.</translation>
    </message>
    <message>
        <source>Finish what you are doing with the mouse first.</source>
        <extracomment>host/core/commands/UndoStack.cpp</extracomment>
        <translation>Zuerst beenden, was mit der Maus begonnen wurde.</translation>
    </message>
    <message>
        <source>There is nothing to change.</source>
        <extracomment>host/core/commands/UndoStack.cpp</extracomment>
        <translation>Es gibt nichts zu ändern.</translation>
    </message>
    <message>
        <source>%1: width</source>
        <extracomment>host/core/editors/BorderEditor.cpp</extracomment>
        <translation>%1: Breite</translation>
    </message>
    <message>
        <source>%1: color</source>
        <extracomment>host/core/editors/BorderEditor.cpp</extracomment>
        <translation>%1: Farbe</translation>
    </message>
    <message>
        <source>Import Font</source>
        <extracomment>host/core/editors/FontEditor.cpp</extracomment>
        <translation>Schrift importieren</translation>
    </message>
    <message>
        <source>Fonts (%1)</source>
        <extracomment>host/core/editors/FontEditor.cpp</extracomment>
        <translation>Schriften (%1)</translation>
    </message>
    <message>
        <source>Copy an image file into the project</source>
        <extracomment>host/core/editors/ImageSourceEditor.cpp</extracomment>
        <translation>Eine Bilddatei in das Projekt kopieren</translation>
    </message>
    <message>
        <source>Import Image</source>
        <extracomment>host/core/editors/ImageSourceEditor.cpp</extracomment>
        <translation>Bild importieren</translation>
    </message>
    <message>
        <source>(none)</source>
        <extracomment>host/core/editors/LinkEditor.cpp</extracomment>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <extracomment>host/core/editors/LinkEditor.cpp</extracomment>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>X</source>
        <extracomment>host/core/editors/PointEditor.cpp</extracomment>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <extracomment>host/core/editors/PointEditor.cpp</extracomment>
        <translation>Y</translation>
    </message>
    <message>
        <source>Write points as &quot;x,y&quot; with one blank between them, for example &quot;0,0 50,0 25,40&quot;.</source>
        <extracomment>host/core/editors/PointListTextEditor.cpp</extracomment>
        <translation>Punkte als „x,y“ mit je einem Leerzeichen dazwischen schreiben, zum Beispiel „0,0 50,0 25,40“.</translation>
    </message>
    <message>
        <source>This value cannot be used.</source>
        <extracomment>host/core/editors/PropertyEditor.cpp</extracomment>
        <translation>Dieser Wert ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>°</source>
        <extracomment>host/core/editors/RotationEditor.cpp</extracomment>
        <translation>°</translation>
    </message>
    <message>
        <source>%1: angle</source>
        <extracomment>host/core/editors/RotationEditor.cpp</extracomment>
        <translation>%1: Winkel</translation>
    </message>
    <message>
        <source>The point that stays in place</source>
        <extracomment>host/core/editors/RotationEditor.cpp</extracomment>
        <translation>Der Punkt, der an seiner Stelle bleibt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid value for &quot;%2&quot;.</source>
        <extracomment>host/core/objects/DesignerObject.cpp</extracomment>
        <translation>„%1“ ist kein gültiger Wert für „%2“.</translation>
    </message>
    <message>
        <source>Group</source>
        <extracomment>host/core/objects/Group.cpp</extracomment>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>The id must not be empty.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation>Die ID darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The id must not be longer than 100 characters.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation>Die ID darf höchstens 100 Zeichen lang sein.</translation>
    </message>
    <message>
        <source>The id must begin with a lower-case letter or an underscore.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation>Die ID muss mit einem Kleinbuchstaben oder einem Unterstrich beginnen.</translation>
    </message>
    <message>
        <source>The id may hold only letters, digits and underscores.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation>Die ID darf nur Buchstaben ohne Umlaute, Ziffern und Unterstriche enthalten.</translation>
    </message>
    <message>
        <source>The id is a reserved word; choose another one.</source>
        <extracomment>host/core/objects/QmlIdentifier.cpp</extracomment>
        <translation>Die ID ist ein reserviertes Wort; eine andere wählen.</translation>
    </message>
    <message>
        <source>The size of a screen must be between 1 and 20000 px in both directions.</source>
        <extracomment>host/core/objects/Screen.cpp</extracomment>
        <translation>Die Größe eines Bildschirms muss in beiden Richtungen zwischen 1 und 20000 px liegen.</translation>
    </message>
    <message>
        <source>Screen</source>
        <extracomment>app/QmlPanel.cpp</extracomment>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>host/core/objects/Screen.cpp</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>host/core/objects/Screen.cpp</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Unknown Element (%1)</source>
        <extracomment>host/core/objects/UnknownElement.cpp</extracomment>
        <translation>Unbekanntes Element (%1)</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>host/core/objects/VisualElement.cpp</extracomment>
        <translation>Position</translation>
    </message>
    <message>
        <source>Rotation</source>
        <extracomment>host/core/objects/VisualElement.cpp</extracomment>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Visible</source>
        <extracomment>host/core/objects/VisualElement.cpp</extracomment>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be used: the class &quot;%2&quot; exists already.</source>
        <extracomment>host/core/plugins/DesignerFactory.cpp</extracomment>
        <translation>Das Plug-in %1 ist nicht verwendbar: Die Klasse „%2“ gibt es schon.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be used: %2.</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation>Das Plug-in %1 ist nicht verwendbar: %2.</translation>
    </message>
    <message>
        <source>it is not a library that can be loaded (%1)</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation>es ist keine Bibliothek, die sich laden lässt (%1)</translation>
    </message>
    <message>
        <source>it has no function qt_plugin_query_verification_data</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation>es hat keine Funktion qt_plugin_query_verification_data</translation>
    </message>
    <message>
        <source>its verification data cannot be read</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation>seine Prüfdaten sind nicht lesbar</translation>
    </message>
    <message>
        <source>it offers no element factory</source>
        <extracomment>host/core/plugins/PluginLoader.cpp</extracomment>
        <translation>es bietet keine Elementfabrik an</translation>
    </message>
    <message>
        <source>it was built with Qt %1, this program with Qt %2</source>
        <extracomment>host/core/plugins/PluginVerification.cpp</extracomment>
        <translation>es wurde mit Qt %1 gebaut, dieses Programm mit Qt %2</translation>
    </message>
    <message>
        <source>it was built with debug=%1, this program with debug=%2</source>
        <extracomment>host/core/plugins/PluginVerification.cpp</extracomment>
        <translation>es wurde mit debug=%1 gebaut, dieses Programm mit debug=%2</translation>
    </message>
    <message>
        <source>its build key is &quot;%1&quot;, that of this program &quot;%2&quot;</source>
        <extracomment>host/core/plugins/PluginVerification.cpp</extracomment>
        <translation>sein Build-Schlüssel ist „%1“, der dieses Programms „%2“</translation>
    </message>
    <message>
        <source>%1 is smaller than %2, the smallest size that can be entered; the element may not be visible. Enlarge it or remove it.</source>
        <extracomment>host/core/project/EditorRange.cpp</extracomment>
        <translation>%1 ist kleiner als %2, die kleinste Größe, die sich eingeben lässt; das Element ist vielleicht nicht sichtbar. Vergrößern oder entfernen.</translation>
    </message>
    <message>
        <source>%1 is below %2, the smallest value that can be entered. Correct it.</source>
        <extracomment>host/core/project/EditorRange.cpp</extracomment>
        <translation>%1 liegt unter %2, dem kleinsten Wert, der sich eingeben lässt. Korrigieren.</translation>
    </message>
    <message>
        <source>%1 is above %2, the largest value that can be entered. Correct it.</source>
        <extracomment>host/core/project/EditorRange.cpp</extracomment>
        <translation>%1 liegt über %2, dem größten Wert, der sich eingeben lässt. Korrigieren.</translation>
    </message>
    <message>
        <source>&quot;class&quot; must be &quot;%1&quot;, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„class“ muss „%1“ sein, nicht %2.</translation>
    </message>
    <message>
        <source>&quot;id&quot; is %1, but the file is that of the screen &quot;%2&quot;. The screen keeps the id &quot;%2&quot;; correct the file or its name.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„id“ ist %1, aber die Datei ist die des Bildschirms „%2“. Der Bildschirm behält die ID „%2“; die Datei oder ihren Namen korrigieren.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ muss ein Objekt sein, nicht %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a list, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ muss eine Liste sein, nicht %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; values are texts. It is taken as &quot;%3&quot;: put it in quotes.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ ist %2; Werte sind Texte. Gelesen wird „%3“: in Anführungszeichen setzen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not take an element of the class &quot;%2&quot;; it is kept, but not shown.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ nimmt kein Element der Klasse „%2“ auf; es bleibt erhalten, wird aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the name of a class.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ muss der Name einer Klasse sein.</translation>
    </message>
    <message>
        <source>The element is kept, but not shown.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>Das Element bleibt erhalten, wird aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text, not %2.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ muss ein Text sein, nicht %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;, which is no id: %3</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>„%1“ ist „%2“; das ist keine ID: %3</translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; stands twice: at %2 and at %3.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>Die ID „%1“ steht zweimal da: bei %2 und bei %3.</translation>
    </message>
    <message>
        <source>The element is called &quot;%1&quot; until you give it an id of its own.</source>
        <extracomment>host/core/project/ElementReader.cpp</extracomment>
        <translation>Das Element heißt „%1“, bis es eine eigene ID bekommt.</translation>
    </message>
    <message>
        <source>%1: Another program is saving this project. Try again when it is done.</source>
        <extracomment>host/core/project/FolderLock.cpp</extracomment>
        <translation>%1: Ein anderes Programm speichert dieses Projekt gerade. Danach erneut versuchen.</translation>
    </message>
    <message>
        <source>%1: the file cannot be read. Check its name and whether you may read it.</source>
        <extracomment>host/core/project/FontImporter.cpp</extracomment>
        <translation>%1: Die Datei ist nicht lesbar. Ihren Namen und die Leserechte prüfen.</translation>
    </message>
    <message>
        <source>%1: the file is larger than 64 MiB. Choose a font with fewer characters.</source>
        <extracomment>host/core/project/FontImporter.cpp</extracomment>
        <translation>%1: Die Datei ist größer als 64 MiB. Eine Schrift mit weniger Zeichen wählen.</translation>
    </message>
    <message>
        <source>%1: this is no font that can be used. Use TrueType or OpenType (TTF, OTF, TTC).</source>
        <extracomment>host/core/project/FontImporter.cpp</extracomment>
        <translation>%1: Dies ist keine verwendbare Schrift. TrueType oder OpenType (TTF, OTF, TTC) verwenden.</translation>
    </message>
    <message>
        <source>There is no image &quot;%1&quot; in this project.</source>
        <extracomment>host/core/project/ImageEdits.cpp</extracomment>
        <translation>In diesem Projekt gibt es kein Bild „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed while it is used: by %2. Choose another image there first.</source>
        <extracomment>host/core/project/ImageEdits.cpp</extracomment>
        <translation>„%1“ lässt sich nicht entfernen, solange es verwendet wird: von %2. Dort zuerst ein anderes Bild wählen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed while the screen &quot;%2&quot; cannot be read: it may use the image.</source>
        <extracomment>host/core/project/ImageEdits.cpp</extracomment>
        <translation>„%1“ lässt sich nicht entfernen, solange der Bildschirm „%2“ nicht lesbar ist: Er verwendet vielleicht das Bild.</translation>
    </message>
    <message>
        <source>Images (%1);;All Files (*)</source>
        <extracomment>host/core/project/ImageFormats.cpp</extracomment>
        <translation>Bilder (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>An image needs a name.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation>Ein Bild braucht einen Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an image. It must be a plain file name: no slashes, colons, control characters or &quot;..&quot;, no dot in front, no blanks at the ends.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation>„%1“ kann kein Bild heißen. Nötig ist ein einfacher Dateiname: keine Schrägstriche, Doppelpunkte, Steuerzeichen oder „..“, kein Punkt am Anfang, keine Leerzeichen an den Enden.</translation>
    </message>
    <message>
        <source>The name &quot;%1…&quot; is too long for a file.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation>Der Name „%1…“ ist für eine Datei zu lang.</translation>
    </message>
    <message>
        <source>The name must go on ending in &quot;.%1&quot;: the ending tells what kind of picture the file holds.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation>Der Name muss weiterhin auf „.%1“ enden: Die Endung sagt, welche Art von Bild die Datei enthält.</translation>
    </message>
    <message>
        <source>There is already an image &quot;%1&quot;.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation>Es gibt schon ein Bild „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and the image &quot;%2&quot; differ only in capitals, which not every computer tells apart.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation>„%1“ und das Bild „%2“ unterscheiden sich nur in der Großschreibung, die nicht jeder Rechner beachtet.</translation>
    </message>
    <message>
        <source>There is already a file &quot;%1&quot; in the project&apos;s images folder. Choose another name.</source>
        <extracomment>host/core/project/ImageNames.cpp</extracomment>
        <translation>Im Bilderordner des Projekts gibt es schon eine Datei „%1“. Einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Line %1: A merge conflict has not been resolved.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>Zeile %1: Ein Merge-Konflikt ist nicht gelöst.</translation>
    </message>
    <message>
        <source>Line %1: This is not JSON: %2.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>Zeile %1: Dies ist kein JSON: %2.</translation>
    </message>
    <message>
        <source>The file must hold a JSON object, not %1.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>In der Datei muss ein JSON-Objekt stehen, nicht %1.</translation>
    </message>
    <message>
        <source>Line %1: The key &quot;%2&quot; stands here for the second time (first in line %3); one of the two values would be lost. Remove one of them.</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>Zeile %1: Der Schlüssel „%2“ steht hier zum zweiten Mal (zuerst in Zeile %3); einer der beiden Werte ginge verloren. Einen davon entfernen.</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>a boolean</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>ein Wahrheitswert</translation>
    </message>
    <message>
        <source>a number</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a text</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a list</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>host/core/project/JsonText.cpp</extracomment>
        <translation>nichts</translation>
    </message>
    <message>
        <source>The project has changed since. Check again.</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation>Das Projekt hat sich seither geändert. Erneut prüfen.</translation>
    </message>
    <message>
        <source>Move onto the screen</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation>Auf den Bildschirm schieben</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation>Auf den Standardwert zurücksetzen</translation>
    </message>
    <message>
        <source>Choose another…</source>
        <extracomment>host/core/project/ProblemFix.cpp</extracomment>
        <translation>Anderes wählen…</translation>
    </message>
    <message>
        <source>Display Size</source>
        <extracomment>host/core/project/Project.cpp</extracomment>
        <translation>Größe der Anzeige</translation>
    </message>
    <message>
        <source>The size of a display must be between 1 and %1 px in both directions.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Die Größe einer Anzeige muss in beiden Richtungen zwischen 1 und %1 px liegen.</translation>
    </message>
    <message>
        <source>The project has no screen. Add one.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Das Projekt hat keinen Bildschirm. Einen hinzufügen.</translation>
    </message>
    <message>
        <source>The file is missing. Put it back, or take it out of the list in project.json.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Die Datei fehlt. Zurücklegen oder aus der Liste in project.json streichen.</translation>
    </message>
    <message>
        <source>The file holds no font that can be used. Replace it.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Die Datei enthält keine verwendbare Schrift. Ersetzen.</translation>
    </message>
    <message>
        <source>The element lies outside of its screen and cannot be seen. Move it onto the screen or remove it.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Das Element liegt außerhalb seines Bildschirms und ist nicht zu sehen. Auf den Bildschirm schieben oder entfernen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid value for &quot;%2&quot;. It is kept, but has no effect: correct it.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>„%1“ ist kein gültiger Wert für „%2“. Er bleibt erhalten, wirkt aber nicht: korrigieren.</translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is neither in the project&apos;s fonts folder nor installed here; another one is shown in its place. Add its file to the project, or choose another font.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Die Schrift „%1“ liegt weder im Schriftenordner des Projekts noch ist sie hier installiert; an ihrer Stelle wird eine andere gezeigt. Ihre Datei zum Projekt hinzufügen oder eine andere Schrift wählen.</translation>
    </message>
    <message>
        <source>The image file &quot;%1&quot; is missing. Put it back, or link another image.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Die Bilddatei „%1“ fehlt. Zurücklegen oder ein anderes Bild wählen.</translation>
    </message>
    <message>
        <source>The image file &quot;%1&quot; cannot be shown (%2). Replace it, or link another image.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>Die Bilddatei „%1“ ist nicht darstellbar (%2). Ersetzen oder ein anderes Bild wählen.</translation>
    </message>
    <message>
        <source>The screen cannot be shown; its file is left as it is until it has been corrected.</source>
        <extracomment>host/core/project/ProjectFiles.cpp</extracomment>
        <translation>Der Bildschirm lässt sich nicht zeigen; seine Datei bleibt, wie sie ist, bis sie korrigiert ist.</translation>
    </message>
    <message>
        <source>The file of the screen is missing.</source>
        <extracomment>host/core/project/ProjectFiles.cpp</extracomment>
        <translation>Die Datei des Bildschirms fehlt.</translation>
    </message>
    <message>
        <source>This symbolic link leads nowhere.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation>Dieser symbolische Link führt ins Leere.</translation>
    </message>
    <message>
        <source>This symbolic link leads out of the project&apos;s folder and is not followed.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation>Dieser symbolische Link führt aus dem Ordner des Projekts hinaus und wird nicht befolgt.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation>Dies ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <extracomment>host/core/project/ProjectFolder.cpp</extracomment>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>The project could not be made.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>Das Projekt konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>Der Ordner ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>A project is a folder, and this is a file.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>Ein Projekt ist ein Ordner, und dies ist eine Datei.</translation>
    </message>
    <message>
        <source>The folder holds no project: there is no file &quot;project.json&quot; in it.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>Der Ordner enthält kein Projekt: Es gibt darin keine Datei „project.json“.</translation>
    </message>
    <message>
        <source>&quot;formatVersion&quot; must be a whole number from 1 to %1, not %2.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>„formatVersion“ muss eine ganze Zahl von 1 bis %1 sein, nicht %2.</translation>
    </message>
    <message>
        <source>The project has format version %1; this program reads versions up to %2. Open it with a newer version of the program.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>Das Projekt hat die Formatversion %1; dieses Programm liest Versionen bis %2. Mit einer neueren Version des Programms öffnen.</translation>
    </message>
    <message>
        <source>&quot;%1[%2]&quot; is %3, which cannot be used as a name.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>„%1[%2]“ ist %3 und als Name nicht verwendbar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names &quot;%2&quot; twice: at %3 and at %4. Remove one.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>„%1“ nennt „%2“ zweimal: bei %3 und bei %4. Eines entfernen.</translation>
    </message>
    <message>
        <source>The file is not listed in project.json and is left alone. Add &quot;%1&quot; to &quot;screens&quot; there, or remove the file.</source>
        <extracomment>host/core/project/ProjectReader.cpp</extracomment>
        <translation>Die Datei steht nicht in project.json und bleibt unberührt. Dort „%1“ bei „screens“ eintragen oder die Datei entfernen.</translation>
    </message>
    <message>
        <source>The screen cannot be renamed to &quot;%1&quot; while its file cannot be read.</source>
        <extracomment>host/core/project/ProjectWriter.cpp</extracomment>
        <translation>Der Bildschirm lässt sich nicht in „%1“ umbenennen, solange seine Datei nicht lesbar ist.</translation>
    </message>
    <message>
        <source>There is already a file of this name, and it does not belong to the project. Move it away, or save into another folder.</source>
        <extracomment>host/core/project/ProjectWriter.cpp</extracomment>
        <translation>Es gibt schon eine Datei dieses Namens, und sie gehört nicht zum Projekt. Verschieben oder in einen anderen Ordner speichern.</translation>
    </message>
    <message>
        <source>The groups of the screen are nested too deeply for a file.</source>
        <extracomment>host/core/project/ProjectWriter.cpp</extracomment>
        <translation>Die Gruppen des Bildschirms sind für eine Datei zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>This is a symbolic link, and nothing is written through it.</source>
        <extracomment>host/core/project/ResourceFolder.cpp</extracomment>
        <translation>Dies ist ein symbolischer Link, durch den nichts geschrieben wird.</translation>
    </message>
    <message>
        <source>%1: the file is larger than 64 MiB. Make the image smaller.</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation>%1: Die Datei ist größer als 64 MiB. Das Bild verkleinern.</translation>
    </message>
    <message>
        <source>%1: the file cannot be read (%2).</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation>%1: Die Datei ist nicht lesbar (%2).</translation>
    </message>
    <message>
        <source>%1: a packed drawing cannot be used. Unpack it into an SVG file.</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation>%1: Eine gepackte Zeichnung ist nicht verwendbar. In eine SVG-Datei entpacken.</translation>
    </message>
    <message>
        <source>%1: this is no image that can be read. Use PNG, JPEG, BMP, GIF, WebP or SVG.</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation>%1: Dies ist kein lesbares Bild. PNG, JPEG, BMP, GIF, WebP oder SVG verwenden.</translation>
    </message>
    <message>
        <source>%1: this image cannot be used (%2).</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation>%1: Dieses Bild ist nicht verwendbar (%2).</translation>
    </message>
    <message>
        <source>it is empty or cannot be written as PNG</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation>es ist leer oder lässt sich nicht als PNG schreiben</translation>
    </message>
    <message>
        <source>This picture cannot be used (%1).</source>
        <extracomment>host/core/project/ResourceImporter.cpp</extracomment>
        <translation>Dieses Bild ist nicht verwendbar (%1).</translation>
    </message>
    <message>
        <source>%1: A save was interrupted, and what it left cannot be understood. Look at the files in this folder (&quot;old&quot; holds the project as it was), put them where they belong and remove the folder.</source>
        <extracomment>host/core/project/SaveRecovery.cpp</extracomment>
        <translation>%1: Ein Speichern wurde unterbrochen, und was es hinterließ, ist nicht zu verstehen. Die Dateien in diesem Ordner ansehen („old“ enthält das Projekt, wie es war), an ihren Platz legen und den Ordner entfernen.</translation>
    </message>
    <message>
        <source>The new content is in place and could not be taken back, but it is not certain that the disk keeps it.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation>Der neue Inhalt ist an seinem Platz und ließ sich nicht zurücknehmen, aber ob der Datenträger ihn behält, ist nicht sicher.</translation>
    </message>
    <message>
        <source>The file was changed by another program after it had been opened here. Save into another folder to keep both versions.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation>Die Datei wurde von einem anderen Programm geändert, nachdem sie hier geöffnet worden war. In einen anderen Ordner speichern, um beide Fassungen zu behalten.</translation>
    </message>
    <message>
        <source>This symbolic link is not replaced.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation>Dieser symbolische Link wird nicht ersetzt.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation>Die Datei ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>This symbolic link leads elsewhere; nothing is saved through it.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation>Dieser symbolische Link führt woandershin; durch ihn wird nichts gespeichert.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation>Dies ist kein Ordner.</translation>
    </message>
    <message>
        <source>What had been replaced until then is put back when the project is next opened (%1).</source>
        <extracomment>host/core/project/SaveTransaction.cpp</extracomment>
        <translation>Was bis dahin ersetzt war, wird beim nächsten Öffnen des Projekts zurückgelegt (%1).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known below &quot;%2&quot; of the class &quot;%3&quot;. It is kept, but has no effect.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation>„%1“ ist unter „%2“ der Klasse „%3“ nicht bekannt. Es bleibt erhalten, wirkt aber nicht.</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; is not known. It is kept, but has no effect.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation>Der Schlüssel „%1“ ist nicht bekannt. Er bleibt erhalten, wirkt aber nicht.</translation>
    </message>
    <message>
        <source>The element cannot be made from what the file says. It is kept, but neither shown nor exported: correct it in the file, or remove it.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation>Das Element lässt sich aus den Angaben der Datei nicht bilden. Es bleibt erhalten, wird aber weder gezeigt noch exportiert: in der Datei korrigieren oder entfernen.</translation>
    </message>
    <message>
        <source>No loaded plug-in serves the class &quot;%1&quot;. The element is kept, but neither shown nor exported: install the plug-in or remove the element.</source>
        <extracomment>host/core/project/UnknownContent.cpp</extracomment>
        <translation>Kein geladenes Plug-in kennt die Klasse „%1“. Das Element bleibt erhalten, wird aber weder gezeigt noch exportiert: das Plug-in installieren oder das Element entfernen.</translation>
    </message>
    <message>
        <source>bold</source>
        <extracomment>host/core/properties/FontProperty.cpp</extracomment>
        <translation>fett</translation>
    </message>
    <message>
        <source>normal</source>
        <extracomment>host/core/properties/FontProperty.cpp</extracomment>
        <translation>normal</translation>
    </message>
    <message>
        <source>A display draws a font normal or bold: the weight %1 is shown as %2.</source>
        <extracomment>host/core/properties/FontProperty.cpp</extracomment>
        <translation>Eine Anzeige zeichnet Schriften normal oder fett: Die Schriftstärke %1 erscheint als %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be linked here.</source>
        <extracomment>host/core/properties/LinkProperty.cpp</extracomment>
        <translation>„%1“ lässt sich hier nicht einsetzen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in this project.</source>
        <extracomment>host/core/properties/LinkProperty.cpp</extracomment>
        <translation>„%1“ gibt es in diesem Projekt nicht.</translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; is used more than once.</source>
        <extracomment>host/core/properties/ObjectListProperty.cpp</extracomment>
        <translation>Die ID „%1“ wird mehrfach verwendet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an object or of a file in the project&apos;s images folder.</source>
        <extracomment>host/core/properties/PropertyValidators.cpp</extracomment>
        <translation>„%1“ ist weder der Name eines Objekts noch der einer Datei im Bilderordner des Projekts.</translation>
    </message>
    <message>
        <source>Give the display a width and a height above 0.</source>
        <extracomment>host/core/qml/ExportContent.cpp</extracomment>
        <translation>Der Anzeige eine Breite und eine Höhe über 0 geben.</translation>
    </message>
    <message>
        <source>A screen that cannot be read cannot be exported.</source>
        <extracomment>host/core/qml/ExportContent.cpp</extracomment>
        <translation>Ein Bildschirm, der nicht lesbar ist, lässt sich nicht exportieren.</translation>
    </message>
    <message>
        <source>The font file cannot be read. %1</source>
        <extracomment>host/core/qml/ExportContent.cpp</extracomment>
        <translation>Die Schriftdatei ist nicht lesbar. %1</translation>
    </message>
    <message>
        <source>The folder holds files that no export wrote. Choose an empty folder or a new one.</source>
        <extracomment>host/core/qml/ExportFolder.cpp</extracomment>
        <translation>Der Ordner enthält Dateien, die kein Export geschrieben hat. Einen leeren oder einen neuen Ordner wählen.</translation>
    </message>
    <message>
        <source>No export wrote this file. Move it away, or export into another folder.</source>
        <extracomment>host/core/qml/ExportFolder.cpp</extracomment>
        <translation>Kein Export hat diese Datei geschrieben. Verschieben oder in einen anderen Ordner exportieren.</translation>
    </message>
    <message>
        <source>The file was changed after it had been exported. Move it away, or export into another folder.</source>
        <extracomment>host/core/qml/ExportFolder.cpp</extracomment>
        <translation>Die Datei wurde nach dem Export geändert. Verschieben oder in einen anderen Ordner exportieren.</translation>
    </message>
    <message>
        <source>This folder belongs to the project itself. Export into another one.</source>
        <extracomment>host/core/qml/QmlExporter.cpp</extracomment>
        <translation>Dieser Ordner gehört zum Projekt selbst. In einen anderen exportieren.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <extracomment>host/core/sheet/FieldEdits.cpp</extracomment>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>%1 follows from other values: reset those.</source>
        <extracomment>host/core/sheet/FieldEdits.cpp</extracomment>
        <translation>%1 ergibt sich aus anderen Werten: diese zurücksetzen.</translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; is no value for %2.</source>
        <extracomment>host/core/sheet/FieldEdits.cpp</extracomment>
        <translation>Der Text „%1“ ist kein Wert für %2.</translation>
    </message>
    <message>
        <source>The stored value &quot;%1&quot; is not valid.</source>
        <extracomment>host/core/sheet/PropertyField.cpp</extracomment>
        <translation>Der gespeicherte Wert „%1“ ist nicht gültig.</translation>
    </message>
    <message>
        <source>different values</source>
        <extracomment>host/core/sheet/PropertyRow.cpp</extracomment>
        <translation>verschiedene Werte</translation>
    </message>
    <message>
        <source>There is no screen yet. Add one, and its properties appear here.</source>
        <extracomment>host/core/sheet/PropertySheet.cpp</extracomment>
        <translation>Es gibt noch keinen Bildschirm. Einen hinzufügen, dann erscheinen hier seine Eigenschaften.</translation>
    </message>
    <message>
        <source>Reset Section</source>
        <extracomment>host/core/sheet/SectionHeader.cpp</extracomment>
        <translation>Abschnitt zurücksetzen</translation>
    </message>
    <message>
        <source>Open section</source>
        <extracomment>host/core/sheet/SectionHeader.cpp</extracomment>
        <translation>Offener Abschnitt</translation>
    </message>
    <message>
        <source>Folded section</source>
        <extracomment>host/core/sheet/SectionHeader.cpp</extracomment>
        <translation>Zugeklappter Abschnitt</translation>
    </message>
    <message>
        <source>Id</source>
        <extracomment>host/core/sheet/SheetHeading.cpp</extracomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>The name by which links and the exported screen know the object</source>
        <extracomment>host/core/sheet/SheetHeading.cpp</extracomment>
        <translation>Der Name, unter dem Verweise und der exportierte Bildschirm das Objekt kennen</translation>
    </message>
    <message>
        <source>Find a property</source>
        <extracomment>host/core/sheet/SheetSearch.cpp</extracomment>
        <translation>Eigenschaft suchen</translation>
    </message>
    <message>
        <source>Shows the properties whose name or value contains what you type here</source>
        <extracomment>host/core/sheet/SheetSearch.cpp</extracomment>
        <translation>Zeigt die Eigenschaften, deren Name oder Wert den Suchtext enthält</translation>
    </message>
    <message>
        <source>Geometry</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Points</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Gradient</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>Unexpected character &quot;%1&quot;.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Unerwartetes Zeichen „%1“.</translation>
    </message>
    <message>
        <source>The result is too large.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Das Ergebnis ist zu groß.</translation>
    </message>
    <message>
        <source>A number cannot be divided by zero.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Durch null lässt sich nicht teilen.</translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Der Ausdruck ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>A closing parenthesis is missing.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Eine schließende Klammer fehlt.</translation>
    </message>
    <message>
        <source>A number is missing.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Eine Zahl fehlt.</translation>
    </message>
    <message>
        <source>A number can have one decimal sign only.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Eine Zahl kann nur ein Dezimalzeichen haben.</translation>
    </message>
    <message>
        <source>The number is too large or too small.</source>
        <extracomment>host/core/values/NumberExpression.cpp</extracomment>
        <translation>Die Zahl ist zu groß oder zu klein.</translation>
    </message>
    <message>
        <source>Brightness</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Opacity</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation>Gewählte Farbe</translation>
    </message>
    <message>
        <source>Pick from screen</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation>Vom Monitor aufnehmen</translation>
    </message>
    <message>
        <source>Pick a color from the screen</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation>Eine Farbe vom Monitor aufnehmen</translation>
    </message>
    <message>
        <source>Font family</source>
        <extracomment>host/core/widgets/FontFamilyBox.cpp</extracomment>
        <translation>Schriftfamilie</translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; is not installed.</source>
        <extracomment>host/core/widgets/FontFamilyBox.cpp</extracomment>
        <translation>Die Schrift „%1“ ist nicht installiert.</translation>
    </message>
    <message>
        <source>Bold</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Overline</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation>Überstrichen</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <extracomment>host/core/widgets/FontStyleButton.cpp</extracomment>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>Thin</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Dünn</translation>
    </message>
    <message>
        <source>Extra light</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Extraleicht</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Normal</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Semi-bold</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Halbfett</translation>
    </message>
    <message>
        <source>Extra bold</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Extrafett</translation>
    </message>
    <message>
        <source>Black</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Ultrafett</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Zeichenabstand</translation>
    </message>
    <message>
        <source>Word spacing</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Wortabstand</translation>
    </message>
    <message>
        <source>Font size</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>pt</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>pt</translation>
    </message>
    <message>
        <source>px</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>px</translation>
    </message>
    <message>
        <source>Unit of the font size</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Einheit der Schriftgröße</translation>
    </message>
    <message>
        <source>Font weight</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Schriftstärke</translation>
    </message>
    <message>
        <source>Copy a font file into the project</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Eine Schriftdatei in das Projekt kopieren</translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Words</source>
        <extracomment>host/core/widgets/FontWidget.cpp</extracomment>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Color as text</source>
        <extracomment>host/core/widgets/HexColorField.cpp</extracomment>
        <translation>Farbe als Text</translation>
    </message>
    <message>
        <source>Hue and saturation</source>
        <extracomment>host/core/widgets/HueSaturationField.cpp</extracomment>
        <translation>Farbton und Sättigung</translation>
    </message>
    <message>
        <source>Hue %1°, saturation %2%</source>
        <extracomment>host/core/widgets/HueSaturationField.cpp</extracomment>
        <translation>Farbton %1°, Sättigung %2 %</translation>
    </message>
    <message>
        <source>Keep ratio</source>
        <extracomment>host/core/widgets/LockToggle.cpp</extracomment>
        <translation>Verhältnis beibehalten</translation>
    </message>
    <message>
        <source>Keep the ratio of width to height</source>
        <extracomment>host/core/widgets/LockToggle.cpp</extracomment>
        <translation>Das Verhältnis von Breite zu Höhe beibehalten</translation>
    </message>
    <message>
        <source>Top left</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Fixed point</source>
        <extracomment>host/core/widgets/NineGrid.cpp</extracomment>
        <translation>Fixpunkt</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>host/core/widgets/SizeWidget.cpp</extracomment>
        <translation>B</translation>
    </message>
    <message>
        <source>H</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>H</translation>
    </message>
    <message>
        <source>Paste in Place</source>
        <extracomment>app/EditActions.cpp</extracomment>
        <translation>An gleicher Stelle einfügen</translation>
    </message>
    <message>
        <source>Start Pa&amp;ge</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Sta&amp;rtseite</translation>
    </message>
    <message>
        <source>The display does not answer; what it runs may be without an end.</source>
        <extracomment>app/LiveDisplay.cpp</extracomment>
        <translation>Die Anzeige antwortet nicht; was sie ausführt, nimmt vielleicht kein Ende.</translation>
    </message>
    <message>
        <source>it has crashed</source>
        <extracomment>app/LiveDisplay.cpp</extracomment>
        <translation>sie ist abgestürzt</translation>
    </message>
    <message>
        <source>The display has ended: %1</source>
        <extracomment>app/LiveDisplay.cpp</extracomment>
        <translation>Die Anzeige wurde beendet: %1</translation>
    </message>
    <message>
        <source>The display sends what no display sends.</source>
        <extracomment>app/LiveDisplay.cpp</extracomment>
        <translation>Die Anzeige sendet, was keine Anzeige sendet.</translation>
    </message>
    <message>
        <source>%1 It has been started several times in vain.</source>
        <extracomment>app/LivePreviewPanel.cpp</extracomment>
        <translation>%1 Sie wurde mehrmals vergeblich gestartet.</translation>
    </message>
    <message>
        <source>Messages of the running display</source>
        <extracomment>app/LivePreviewPanel.cpp</extracomment>
        <translation>Meldungen der laufenden Anzeige</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>app/LivePreviewPanel.cpp</extracomment>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Running display</source>
        <extracomment>app/LiveView.cpp</extracomment>
        <translation>Laufende Anzeige</translation>
    </message>
    <message>
        <source>Hidden on the canvas</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Auf der Zeichenfläche ausgeblendet</translation>
    </message>
    <message>
        <source>Shown on the canvas</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Auf der Zeichenfläche sichtbar</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Not locked</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Nicht gesperrt</translation>
    </message>
    <message>
        <source>Hidden on the canvas with its group. Click to hide it by itself, too.</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Mit seiner Gruppe auf der Zeichenfläche ausgeblendet. Klicken, um es auch selbst auszublenden.</translation>
    </message>
    <message>
        <source>Locked with its group. Click to lock it by itself, too.</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Mit seiner Gruppe gesperrt. Klicken, um es auch selbst zu sperren.</translation>
    </message>
    <message>
        <source>Hidden on the canvas. Click to show it.</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Auf der Zeichenfläche ausgeblendet. Klicken, um es einzublenden.</translation>
    </message>
    <message>
        <source>Click to hide it on the canvas. Exports show it all the same.</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Klicken, um es auf der Zeichenfläche auszublenden. Exporte zeigen es trotzdem.</translation>
    </message>
    <message>
        <source>Locked against the mouse. Click to unlock it.</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Für die Maus gesperrt. Klicken, um es zu entsperren.</translation>
    </message>
    <message>
        <source>Click to lock it against the mouse.</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>Klicken, um es für die Maus zu sperren.</translation>
    </message>
    <message>
        <source>%1, %2 × %3 px</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>%1, %2 × %3 px</translation>
    </message>
    <message>
        <source>%1 at %2, %3</source>
        <extracomment>app/ProjectTreeRow.cpp</extracomment>
        <translation>%1 bei %2, %3</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>app/ProjectTreePanel.cpp</extracomment>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Filter the project tree</source>
        <extracomment>app/ProjectTreePanel.cpp</extracomment>
        <translation>Projektbaum filtern</translation>
    </message>
    <message>
        <source>Show only rows with this in their name or class (Ctrl+F in the tree)</source>
        <extracomment>app/ProjectTreePanel.cpp</extracomment>
        <translation>Nur Zeilen zeigen, deren Name oder Klasse dies enthält (Strg+F im Baum)</translation>
    </message>
    <message>
        <source>Expand all</source>
        <extracomment>app/ProjectTreePanel.cpp</extracomment>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <extracomment>app/ProjectTreePanel.cpp</extracomment>
        <translation>Alle zuklappen</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>app/QmlPanel.cpp</extracomment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>What is shown as QML</source>
        <extracomment>app/QmlPanel.cpp</extracomment>
        <translation>Was als QML gezeigt wird</translation>
    </message>
    <message>
        <source>Find</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find in the QML</source>
        <extracomment>app/QmlPanel.cpp</extracomment>
        <translation>Im QML suchen</translation>
    </message>
    <message>
        <source>Copy the QML</source>
        <extracomment>app/QmlPanel.cpp</extracomment>
        <translation>QML kopieren</translation>
    </message>
    <message numerus="yes">
        <source>%n more elements</source>
        <extracomment>app/QmlPanel.cpp</extracomment>
        <translation>
            <numerusform>%n weiteres Element</numerusform>
            <numerusform>%n weitere Elemente</numerusform>
        </translation>
    </message>
    <message>
        <source>QML</source>
        <extracomment>app/QmlTextView.cpp</extracomment>
        <translation>QML</translation>
    </message>
    <message>
        <source>Name of the screen</source>
        <extracomment>app/ScreenDelegate.cpp</extracomment>
        <translation>Name des Bildschirms</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>This key has no name that can be kept.</source>
        <extracomment>app/ShortcutSettings.cpp</extracomment>
        <translation>Diese Taste hat keinen Namen, der sich merken lässt.</translation>
    </message>
    <message>
        <source>%1 is a key of the canvas and of lists and fields.</source>
        <extracomment>app/ShortcutSettings.cpp</extracomment>
        <translation>%1 ist eine Taste der Zeichenfläche und der Listen und Felder.</translation>
    </message>
    <message>
        <source>%1 is needed for typing. Add Ctrl or Alt to it.</source>
        <extracomment>app/ShortcutSettings.cpp</extracomment>
        <translation>%1 wird zum Schreiben gebraucht. Mit Strg oder Alt kombinieren.</translation>
    </message>
    <message>
        <source>%1 is a key of elements on the canvas.</source>
        <extracomment>app/ShortcutSettings.cpp</extracomment>
        <translation>%1 ist eine Taste von Elementen auf der Zeichenfläche.</translation>
    </message>
    <message>
        <source>%1 opens the menu %2.</source>
        <extracomment>app/ShortcutSettings.cpp</extracomment>
        <translation>%1 öffnet das Menü %2.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Use It Here Instead</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Stattdessen hier verwenden</translation>
    </message>
    <message>
        <source>Search by name or key</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Nach Name oder Taste suchen</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Tastenkürzel suchen</translation>
    </message>
    <message>
        <source>Command</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Neues Tastenkürzel</translation>
    </message>
    <message>
        <source>Leave the command without a shortcut</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Den Befehl ohne Tastenkürzel lassen</translation>
    </message>
    <message>
        <source>Go back to the shortcut that the command comes with</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Zum mitgelieferten Tastenkürzel des Befehls zurückkehren</translation>
    </message>
    <message>
        <source>Reset All</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>%1: mouse and fixed keys</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>%1: Maus und feste Tasten</translation>
    </message>
    <message>
        <source>Shortcut of &quot;%1&quot;:</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Tastenkürzel von „%1“:</translation>
    </message>
    <message>
        <source>Choose a command to change its shortcut.</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>Einen Befehl wählen, um sein Tastenkürzel zu ändern.</translation>
    </message>
    <message>
        <source>%1 belongs to &quot;%2&quot;.</source>
        <extracomment>app/ShortcutsDialog.cpp</extracomment>
        <translation>%1 gehört zu „%2“.</translation>
    </message>
    <message>
        <source>Projects that you save or open appear here.</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Hier erscheinen gespeicherte und geöffnete Projekte.</translation>
    </message>
    <message>
        <source>Start page</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>New project</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Zuletzt verwendete Projekte</translation>
    </message>
    <message>
        <source>Examples</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Zuletzt verwendete Projekte</translation>
    </message>
    <message>
        <source>Meridane Designer</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Meridane Designer</translation>
    </message>
    <message>
        <source>Screens for small panel displays</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Bildschirme für kleine Anzeigen</translation>
    </message>
    <message>
        <source>Open Project…</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Projekt öffnen…</translation>
    </message>
    <message>
        <source>Go to the Canvas</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Zur Zeichenfläche</translation>
    </message>
    <message>
        <source>Leave the start page (Esc)</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Die Startseite verlassen (Esc)</translation>
    </message>
    <message>
        <source>pixels</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Other Size…</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Andere Größe…</translation>
    </message>
    <message>
        <source>name and size</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Name und Größe</translation>
    </message>
    <message>
        <source>opens as a copy</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>öffnet als Kopie</translation>
    </message>
    <message>
        <source>Missing: remove from list</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>Fehlt: aus der Liste entfernen</translation>
    </message>
    <message>
        <source>There is no project in &quot;%1&quot; any more.</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>In „%1“ gibt es kein Projekt mehr.</translation>
    </message>
    <message>
        <source>%1 (Del takes it off the list)</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>%1 (Entf nimmt es aus der Liste)</translation>
    </message>
    <message>
        <source>Align Left Edges</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Linke Kanten ausrichten</translation>
    </message>
    <message>
        <source>Align Centers</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Mitten waagerecht ausrichten</translation>
    </message>
    <message>
        <source>Align Right Edges</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Rechte Kanten ausrichten</translation>
    </message>
    <message>
        <source>Align Top Edges</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Obere Kanten ausrichten</translation>
    </message>
    <message>
        <source>Align Middles</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Mitten senkrecht ausrichten</translation>
    </message>
    <message>
        <source>Align Bottom Edges</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Untere Kanten ausrichten</translation>
    </message>
    <message>
        <source>There is no element to align.</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Es gibt kein Element zum Ausrichten.</translation>
    </message>
    <message>
        <source>Three or more elements that can be moved can be distributed.</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Zum Verteilen braucht es drei oder mehr Elemente, die sich verschieben lassen.</translation>
    </message>
    <message>
        <source>Distribute Horizontally</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Waagerecht verteilen</translation>
    </message>
    <message>
        <source>Distribute Vertically</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Senkrecht verteilen</translation>
    </message>
    <message>
        <source>There is no element to center.</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Es gibt kein Element zum Zentrieren.</translation>
    </message>
    <message>
        <source>Center on Screen</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Auf dem Bildschirm zentrieren</translation>
    </message>
    <message>
        <source>Two or more elements that have a size can be made the same size.</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Für gleiche Größen braucht es zwei oder mehr Elemente mit einer Größe.</translation>
    </message>
    <message>
        <source>Make Same Width</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Gleich breit machen</translation>
    </message>
    <message>
        <source>Make Same Height</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Gleich hoch machen</translation>
    </message>
    <message>
        <source>Make Same Size</source>
        <extracomment>host/core/arrange/Alignment.cpp</extracomment>
        <translation>Gleich groß machen</translation>
    </message>
    <message>
        <source>Two or more elements that can be moved make a group.</source>
        <extracomment>host/core/arrange/Grouping.cpp</extracomment>
        <translation>Eine Gruppe braucht zwei oder mehr Elemente, die sich verschieben lassen.</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <extracomment>host/core/arrange/Grouping.cpp</extracomment>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>Add Guide</source>
        <extracomment>host/core/canvas/CanvasGuides.cpp</extracomment>
        <translation>Hilfslinie hinzufügen</translation>
    </message>
    <message>
        <source>Move Guide</source>
        <extracomment>host/core/canvas/CanvasGuides.cpp</extracomment>
        <translation>Hilfslinie verschieben</translation>
    </message>
    <message>
        <source>Remove Guide</source>
        <extracomment>host/core/canvas/CanvasGuides.cpp</extracomment>
        <translation>Hilfslinie entfernen</translation>
    </message>
    <message>
        <source>Clear Guides</source>
        <extracomment>host/core/canvas/CanvasGuides.cpp</extracomment>
        <translation>Alle Hilfslinien entfernen</translation>
    </message>
    <message>
        <source>Horizontal Ruler</source>
        <extracomment>host/core/canvas/CanvasRuler.cpp</extracomment>
        <translation>Waagerechtes Lineal</translation>
    </message>
    <message>
        <source>Vertical Ruler</source>
        <extracomment>host/core/canvas/CanvasRuler.cpp</extracomment>
        <translation>Senkrechtes Lineal</translation>
    </message>
    <message>
        <source>Drag a guide out of the ruler</source>
        <extracomment>host/core/canvas/CanvasRuler.cpp</extracomment>
        <translation>Eine Hilfslinie aus dem Lineal ziehen</translation>
    </message>
    <message numerus="yes">
        <source>Lock %n Elements</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>
            <numerusform>%n Element sperren</numerusform>
            <numerusform>%n Elemente sperren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlock %n Elements</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>
            <numerusform>%n Element entsperren</numerusform>
            <numerusform>%n Elemente entsperren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Hide %n Elements</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>
            <numerusform>%n Element ausblenden</numerusform>
            <numerusform>%n Elemente ausblenden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %n Elements</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>
            <numerusform>%n Element einblenden</numerusform>
            <numerusform>%n Elemente einblenden</numerusform>
        </translation>
    </message>
    <message>
        <source>These elements cannot be moved there.</source>
        <extracomment>host/core/canvas/EditSession.cpp</extracomment>
        <translation>Diese Elemente lassen sich nicht dorthin verschieben.</translation>
    </message>
    <message>
        <source>x %1</source>
        <extracomment>host/core/canvas/GuideGesture.cpp</extracomment>
        <translation>x %1</translation>
    </message>
    <message>
        <source>y %1</source>
        <extracomment>host/core/canvas/GuideGesture.cpp</extracomment>
        <translation>y %1</translation>
    </message>
    <message>
        <source>There is no font file &quot;%1&quot; in this project.</source>
        <extracomment>host/core/project/FontReferences.cpp</extracomment>
        <translation>In diesem Projekt gibt es keine Schriftdatei „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed while the screen &quot;%2&quot; cannot be read: it may use the font.</source>
        <extracomment>host/core/project/FontReferences.cpp</extracomment>
        <translation>„%1“ lässt sich nicht entfernen, solange der Bildschirm „%2“ nicht lesbar ist: Er verwendet vielleicht die Schrift.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed while it is used: by %2. Choose another font there first.</source>
        <extracomment>host/core/project/FontReferences.cpp</extracomment>
        <translation>„%1“ lässt sich nicht entfernen, solange es verwendet wird: von %2. Dort zuerst eine andere Schrift wählen.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <extracomment>host/core/project/ScreenEdits.cpp</extracomment>
        <translation>%1 duplizieren</translation>
    </message>
    <message>
        <source>The size of a screen must be between 1 and %1 px in both directions.</source>
        <extracomment>host/core/project/ScreenEdits.cpp</extracomment>
        <translation>Die Größe eines Bildschirms muss in beiden Richtungen zwischen 1 und %1 px liegen.</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <extracomment>host/core/sheet/PropertyRow.cpp</extracomment>
        <translation>Auf Standardwert zurücksetzen</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <extracomment>host/core/sheet/PropertyRow.cpp</extracomment>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Paste Value</source>
        <extracomment>host/core/sheet/PropertyRow.cpp</extracomment>
        <translation>Wert einfügen</translation>
    </message>
    <message>
        <source>Reset to the default: %1</source>
        <extracomment>host/core/sheet/PropertyRow.cpp</extracomment>
        <translation>Auf den Standardwert zurücksetzen: %1</translation>
    </message>
    <message>
        <source>No property matches &quot;%1&quot;.</source>
        <extracomment>host/core/sheet/PropertySheet.cpp</extracomment>
        <translation>Keine Eigenschaft passt zu „%1“.</translation>
    </message>
    <message>
        <source>%</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>%</translation>
    </message>
    <message>
        <source>R</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>R</translation>
    </message>
    <message>
        <source>Red</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>Rot</translation>
    </message>
    <message>
        <source>G</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>Grün</translation>
    </message>
    <message>
        <source>B</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Hue</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>V</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>V</translation>
    </message>
    <message>
        <source>A</source>
        <extracomment>host/core/widgets/ColorChannelFields.cpp</extracomment>
        <translation>A</translation>
    </message>
    <message>
        <source>In the project</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation>Im Projekt</translation>
    </message>
    <message>
        <source>Recently used</source>
        <extracomment>host/core/widgets/ColorPopup.cpp</extracomment>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color. Write #rrggbb, #aarrggbb or the name of a color.</source>
        <extracomment>host/core/widgets/HexColorField.cpp</extracomment>
        <translation>„%1“ ist keine Farbe. #rrggbb, #aarrggbb oder den Namen einer Farbe schreiben.</translation>
    </message>
    <message>
        <source>Grou&amp;p</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Gruppieren</translation>
    </message>
    <message>
        <source>Ung&amp;roup</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Gruppierung au&amp;fheben</translation>
    </message>
    <message>
        <source>Align &amp;Left</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Links ausrichten</translation>
    </message>
    <message>
        <source>Align &amp;Center</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Waagerecht mittig ausrichten</translation>
    </message>
    <message>
        <source>Align &amp;Right</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Rechts ausrichten</translation>
    </message>
    <message>
        <source>Align To&amp;p</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Oben &amp;ausrichten</translation>
    </message>
    <message>
        <source>Align &amp;Middle</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Senkrecht &amp;mittig ausrichten</translation>
    </message>
    <message>
        <source>Align Bo&amp;ttom</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Unten ausri&amp;chten</translation>
    </message>
    <message>
        <source>Distribute &amp;Horizontally</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Waagerecht verteilen</translation>
    </message>
    <message>
        <source>Distribute &amp;Vertically</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Senkrecht &amp;verteilen</translation>
    </message>
    <message>
        <source>Distribute &amp;Centers Horizontally</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Mitten w&amp;aagerecht verteilen</translation>
    </message>
    <message>
        <source>Distribute C&amp;enters Vertically</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Mitten senkrecht verteilen</translation>
    </message>
    <message>
        <source>Make Same &amp;Width</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Gleiche Breite</translation>
    </message>
    <message>
        <source>Make Same &amp;Height</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Gleiche &amp;Höhe</translation>
    </message>
    <message>
        <source>Make Same Si&amp;ze</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Glei&amp;che Größe</translation>
    </message>
    <message>
        <source>&amp;Center on Screen</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Auf &amp;dem Bildschirm zentrieren</translation>
    </message>
    <message>
        <source>&amp;Lock</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>S&amp;perren</translation>
    </message>
    <message>
        <source>U&amp;nlock All</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>A&amp;lle entsperren</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Ausblenden</translation>
    </message>
    <message>
        <source>Show All Hidd&amp;en</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Alle &amp;wieder einblenden</translation>
    </message>
    <message>
        <source>&amp;Align</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Aus&amp;richten</translation>
    </message>
    <message>
        <source>&amp;Distribute</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>&amp;Verteilen</translation>
    </message>
    <message>
        <source>&amp;Make Same Size</source>
        <extracomment>app/ArrangeActions.cpp</extracomment>
        <translation>Gleich groß &amp;machen</translation>
    </message>
    <message>
        <source>S&amp;nap</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>&amp;Einrasten</translation>
    </message>
    <message>
        <source>Gri&amp;d</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>&amp;Raster</translation>
    </message>
    <message>
        <source>Ru&amp;lers</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>Loc&amp;k Guides</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>Hilfslinien fi&amp;xieren</translation>
    </message>
    <message>
        <source>&amp;Add Guide…</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>Hilfslinie hinzuf&amp;ügen…</translation>
    </message>
    <message>
        <source>&amp;Clear Guides</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>Alle &amp;Hilfslinien entfernen</translation>
    </message>
    <message>
        <source>Zoom &amp;to Selection</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>&amp;Auf Auswahl zoomen</translation>
    </message>
    <message>
        <source>Grid of %1 px</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>Raster von %1 px</translation>
    </message>
    <message>
        <source>&amp;Other Spacing…</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>&amp;Anderer Abstand…</translation>
    </message>
    <message>
        <source>Grid Spacin&amp;g</source>
        <extracomment>app/CanvasActions.cpp</extracomment>
        <translation>Rasterabstan&amp;d</translation>
    </message>
    <message>
        <source>All colors</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Alle Farben</translation>
    </message>
    <message>
        <source>RGB565</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>RGB565</translation>
    </message>
    <message>
        <source>RGB565, dithered</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>RGB565, gerastert</translation>
    </message>
    <message>
        <source>RGB332</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>RGB332</translation>
    </message>
    <message>
        <source>Gray</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Colors of the panel</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Farben der Anzeige</translation>
    </message>
    <message>
        <source>How the panel is turned</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Wie die Anzeige gedreht ist</translation>
    </message>
    <message>
        <source>Physical size</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Wirkliche Größe</translation>
    </message>
    <message>
        <source> dpi</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation> dpi</translation>
    </message>
    <message>
        <source>not known</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source> %</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation> %</translation>
    </message>
    <message>
        <source>Larger where the picture is smaller than the panel: screens often do not know their own density.</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Größer, wo das Bild kleiner als die Anzeige ist: Monitore kennen ihre eigene Auflösung oft nicht.</translation>
    </message>
    <message>
        <source>Density of the panel:</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Auflösung der Anzeige:</translation>
    </message>
    <message>
        <source>Correction of this screen:</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Korrektur dieses Monitors:</translation>
    </message>
    <message>
        <source>The screen as the panel shows it</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Der Bildschirm, wie ihn die Anzeige zeigt</translation>
    </message>
    <message>
        <source>Import Fonts</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Schriften importieren</translation>
    </message>
    <message>
        <source>Fonts (*.ttf *.otf *.ttc)</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Schriften (*.ttf *.otf *.ttc)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg)</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>SVG-Zeichnungen (*.svg)</translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <extracomment>app/DialogPrompts.cpp</extracomment>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <source>References to</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Verweise auf</translation>
    </message>
    <message>
        <source>What is looked for</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Wonach gesucht wird</translation>
    </message>
    <message>
        <source>Find in the project</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Im Projekt suchen</translation>
    </message>
    <message>
        <source>Places that were found</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Gefundene Stellen</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Art</translation>
    </message>
    <message>
        <source>Property</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Wert</translation>
    </message>
    <message>
        <source>id, image, font or colour (#rrggbb)</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>ID, Bild, Schrift oder Farbe (#rrggbb)</translation>
    </message>
    <message>
        <source>id, class, text or value</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>ID, Klasse, Text oder Wert</translation>
    </message>
    <message>
        <source>The search was ended.</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Die Suche wurde beendet.</translation>
    </message>
    <message>
        <source>Searching… (Esc ends it)</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Suche läuft… (Esc beendet sie)</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>Nichts gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>The first %n places</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>
            <numerusform>Die erste Stelle</numerusform>
            <numerusform>Die ersten %n Stellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n places</source>
        <extracomment>app/FindPanel.cpp</extracomment>
        <translation>
            <numerusform>%n Stelle</numerusform>
            <numerusform>%n Stellen</numerusform>
        </translation>
    </message>
    <message>
        <source>Ag 21.5 °C The quick brown fox</source>
        <extracomment>app/FontDelegate.cpp</extracomment>
        <translation>Ag 21,5 °C Zwölf Boxkämpfer jagen</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>app/FontDelegate.cpp</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Copy font files into the project</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Schriftdateien in das Projekt kopieren</translation>
    </message>
    <message>
        <source>List the places that use the font</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Die Stellen auflisten, die die Schrift verwenden</translation>
    </message>
    <message>
        <source>Remove the font from the project (Del)</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Die Schrift aus dem Projekt entfernen (Entf)</translation>
    </message>
    <message>
        <source>Fonts</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>The file holds no font that can be used.</source>
        <extracomment>app/FontPanel.cpp</extracomment>
        <translation>Die Datei enthält keine verwendbare Schrift.</translation>
    </message>
    <message>
        <source>Grid Spacing</source>
        <extracomment>app/GridDialog.cpp</extracomment>
        <translation>Rasterabstand</translation>
    </message>
    <message>
        <source>&amp;Horizontal:</source>
        <extracomment>app/GridDialog.cpp</extracomment>
        <translation>&amp;Waagerecht:</translation>
    </message>
    <message>
        <source>&amp;Vertical:</source>
        <extracomment>app/GridDialog.cpp</extracomment>
        <translation>Senkre&amp;cht:</translation>
    </message>
    <message>
        <source>Position of the Guide</source>
        <extracomment>app/GuidePopup.cpp</extracomment>
        <translation>Position der Hilfslinie</translation>
    </message>
    <message>
        <source>Vertical, at x</source>
        <extracomment>app/GuidePopup.cpp</extracomment>
        <translation>Senkrecht, bei x</translation>
    </message>
    <message>
        <source>Horizontal, at y</source>
        <extracomment>app/GuidePopup.cpp</extracomment>
        <translation>Waagerecht, bei y</translation>
    </message>
    <message>
        <source>Direction of the Guide</source>
        <extracomment>app/GuidePopup.cpp</extracomment>
        <translation>Richtung der Hilfslinie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>app/LongWork.cpp</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Arrange</source>
        <extracomment>app/MainWindowMenus.cpp</extracomment>
        <translation>&amp;Anordnen</translation>
    </message>
    <message>
        <source>Exporting the QML…</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>Das QML wird exportiert…</translation>
    </message>
    <message>
        <source>&amp;Transparent background</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation>&amp;Durchsichtiger Hintergrund</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation>SVG-Zeichnung</translation>
    </message>
    <message>
        <source> ×</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation> ×</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation>&amp;Maßstab:</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>app/PictureDialog.cpp</extracomment>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>This is no file that can be replaced.</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>Dies ist keine Datei, die sich ersetzen lässt.</translation>
    </message>
    <message>
        <source>Export Screen as &amp;Picture…</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>Bildschirm als Bild &amp;exportieren…</translation>
    </message>
    <message>
        <source>Export Se&amp;lection as Picture…</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>&amp;Auswahl als Bild exportieren…</translation>
    </message>
    <message>
        <source>This folder belongs to the project itself. Choose another one.</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>Dieser Ordner gehört zum Projekt selbst. Einen anderen wählen.</translation>
    </message>
    <message>
        <source>The picture has been saved as &quot;%1&quot;.</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>Das Bild wurde als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has not been written. %2</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>„%1“ wurde nicht geschrieben. %2</translation>
    </message>
    <message>
        <source>Drawing the picture…</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>Das Bild wird gezeichnet…</translation>
    </message>
    <message>
        <source>There is nothing to be drawn.</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>Es gibt nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>A picture of this scale is too large.</source>
        <extracomment>app/PictureExport.cpp</extracomment>
        <translation>Ein Bild in diesem Maßstab ist zu groß.</translation>
    </message>
    <message>
        <source>Show the problems of the project</source>
        <extracomment>app/ProblemIndicator.cpp</extracomment>
        <translation>Die Probleme des Projekts zeigen</translation>
    </message>
    <message>
        <source>No problems</source>
        <extracomment>app/ProblemIndicator.cpp</extracomment>
        <translation>Keine Probleme</translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <extracomment>app/ProblemIndicator.cpp</extracomment>
        <translation>
            <numerusform>%n Problem</numerusform>
            <numerusform>%n Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>Way to Mend</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Abhilfe</translation>
    </message>
    <message>
        <source>Show the Place</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Stelle zeigen</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>app/ProblemsPanel.cpp</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>&amp;Find in Project…</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>Im &amp;Projekt suchen…</translation>
    </message>
    <message>
        <source>Find Re&amp;ferences</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>&amp;Verweise suchen</translation>
    </message>
    <message>
        <source>Sc&amp;reen</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>Bilds&amp;chirm</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>Probleme (%1)</translation>
    </message>
    <message>
        <source>Live Preview</source>
        <extracomment>app/ResultPanels.cpp</extracomment>
        <translation>Live-Vorschau</translation>
    </message>
    <message>
        <source>As on the Panel</source>
        <extracomment>app/ResultPanels.cpp</extracomment>
        <translation>Wie auf der Anzeige</translation>
    </message>
    <message>
        <source>&amp;Live Preview</source>
        <extracomment>app/ResultPanels.cpp</extracomment>
        <translation>Live-&amp;Vorschau</translation>
    </message>
    <message>
        <source>As on the Pan&amp;el</source>
        <extracomment>app/ResultPanels.cpp</extracomment>
        <translation>&amp;Wie auf der Anzeige</translation>
    </message>
    <message>
        <source>&amp;QML</source>
        <extracomment>app/ResultPanels.cpp</extracomment>
        <translation>&amp;QML</translation>
    </message>
    <message>
        <source>Du&amp;plicate Screen</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Bildschirm &amp;duplizieren</translation>
    </message>
    <message>
        <source>Re&amp;name Screen</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Bilds&amp;chirm umbenennen</translation>
    </message>
    <message>
        <source>Resi&amp;ze Screen…</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>&amp;Größe des Bildschirms ändern…</translation>
    </message>
    <message>
        <source>Move Screen &amp;Forward</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Bildschirm &amp;nach vorn</translation>
    </message>
    <message>
        <source>Move Screen Bac&amp;k</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Bildschirm nach &amp;hinten</translation>
    </message>
    <message>
        <source>Re&amp;move Screen</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Bildschirm &amp;entfernen</translation>
    </message>
    <message>
        <source>Resize…</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Größe ändern…</translation>
    </message>
    <message>
        <source>Move Forward</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Nach vorn</translation>
    </message>
    <message>
        <source>Move Back</source>
        <extracomment>app/ScreenActions.cpp</extracomment>
        <translation>Nach hinten</translation>
    </message>
    <message>
        <source>&amp;Leave the elements as they are</source>
        <extracomment>app/ScreenSizeDialog.cpp</extracomment>
        <translation>&amp;Elemente lassen, wie sie sind</translation>
    </message>
    <message>
        <source>S&amp;cale the elements with the screen</source>
        <extracomment>app/ScreenSizeDialog.cpp</extracomment>
        <translation>Elemente mit &amp;dem Bildschirm skalieren</translation>
    </message>
    <message>
        <source>Resize &quot;%1&quot;</source>
        <extracomment>app/ScreenSizeDialog.cpp</extracomment>
        <translation>Größe von „%1“ ändern</translation>
    </message>
    <message>
        <source>Resize</source>
        <extracomment>app/ScreenSizeDialog.cpp</extracomment>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <extracomment>app/ScreenSizeDialog.cpp</extracomment>
        <translation>B&amp;reite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <extracomment>app/ScreenSizeDialog.cpp</extracomment>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Find Property</source>
        <extracomment>app/SheetActions.cpp</extracomment>
        <translation>Eigenscha&amp;ft suchen</translation>
    </message>
    <message>
        <source>Rese&amp;t Property</source>
        <extracomment>app/SheetActions.cpp</extracomment>
        <translation>Eigenschaft &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>host/core/sheet/SheetSections.cpp</extracomment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Selec&amp;t Under the Pointer</source>
        <extracomment>app/CanvasMenu.cpp</extracomment>
        <translation>Unter dem Mauszeiger &amp;auswählen</translation>
    </message>
    <message>
        <source>O&amp;pen</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <extracomment>app/StartPage.cpp</extracomment>
        <translation>&amp;Aus der Liste entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Screen %1 with %n elements</source>
        <extracomment>host/core/accessibility/AccessibleCanvas.cpp</extracomment>
        <translation>
            <numerusform>Bildschirm %1 mit %n Element</numerusform>
            <numerusform>Bildschirm %1 mit %n Elementen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>host/core/accessibility/AccessibleElement.cpp</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <extracomment>host/core/accessibility/AccessibleElement.cpp</extracomment>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>host/core/accessibility/AccessibleElement.cpp</extracomment>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Selects the element alone</source>
        <extracomment>host/core/accessibility/AccessibleElement.cpp</extracomment>
        <translation>Wählt nur dieses Element aus</translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Elements</source>
        <extracomment>host/core/canvas/SelectionResizeGesture.cpp</extracomment>
        <translation>
            <numerusform>Größe von %n Element ändern</numerusform>
            <numerusform>Größe von %n Elementen ändern</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no guide. Guides are written as in &quot;x 100, y 50.5&quot;.</source>
        <extracomment>host/core/project/ProjectChecker.cpp</extracomment>
        <translation>„%1“ ist keine Hilfslinie. Hilfslinien werden wie in „x 100, y 50.5“ geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source> (And %n more.)</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation>
            <numerusform> (Und %n weiteres.)</numerusform>
            <numerusform> (Und %n weitere.)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n frames</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation>
            <numerusform>%1, %n Einzelbild</numerusform>
            <numerusform>%1, %n Einzelbilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n uses</source>
        <extracomment>app/ImageListModel.cpp</extracomment>
        <translation>
            <numerusform>%n Verwendung</numerusform>
            <numerusform>%n Verwendungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <extracomment>app/ImagePanel.cpp</extracomment>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems were found.</source>
        <extracomment>app/MainWindow.cpp</extracomment>
        <translation>
            <numerusform>%n Problem wurde gefunden.</numerusform>
            <numerusform>%n Probleme wurden gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Group Elements</source>
        <extracomment>host/core/arrange/Grouping.cpp</extracomment>
        <translation>Elemente gruppieren</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n Elements</source>
        <extracomment>host/core/project/ElementEdits.cpp</extracomment>
        <translation>
            <numerusform>%n Element entfernen</numerusform>
            <numerusform>%n Elemente entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n Images</source>
        <extracomment>host/core/canvas/ImagePlacement.cpp</extracomment>
        <translation>
            <numerusform>%n Bild hinzufügen</numerusform>
            <numerusform>%n Bilder hinzufügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>host/core/project/FontReferences.cpp</extracomment>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <extracomment>host/core/sheet/SheetHeading.cpp</extracomment>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Shrink the picture to fit</source>
        <extracomment>app/DevicePanel.cpp</extracomment>
        <translation>Bild passend verkleinern</translation>
    </message>
    <message>
        <source>Saving the project…</source>
        <extracomment>app/FileActions.cpp</extracomment>
        <translation>Das Projekt wird gespeichert…</translation>
    </message>
    <message>
        <source>Importing the images…</source>
        <extracomment>app/ImageActions.cpp</extracomment>
        <translation>Die Bilder werden importiert…</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <extracomment>app/OutputActions.cpp</extracomment>
        <translation>Die Vorschau wird vorbereitet…</translation>
    </message>
    <message>
        <source>Checking the project…</source>
        <extracomment>app/ProjectPanels.cpp</extracomment>
        <translation>Das Projekt wird geprüft…</translation>
    </message>
</context>
<context>
    <name>VisualDesigner</name>
    <message>
        <source>Conical Gradient Element</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation>Konischer Verlauf</translation>
    </message>
    <message>
        <source>°</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation>°</translation>
    </message>
    <message>
        <source>Center</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Start Angle (Clockwise)</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation>Startwinkel (im Uhrzeigersinn)</translation>
    </message>
    <message>
        <source>Start Angle</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>Center X</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation>Mittelpunkt X</translation>
    </message>
    <message>
        <source>Center Y</source>
        <extracomment>gradients/ConicalGradientElement.cpp</extracomment>
        <translation>Mittelpunkt Y</translation>
    </message>
    <message>
        <source>A stop at %1 cannot be drawn: positions are from 0 to 1. Correct or remove it.</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation>Ein Farbstopp bei %1 lässt sich nicht zeichnen: Positionen reichen von 0 bis 1. Korrigieren oder entfernen.</translation>
    </message>
    <message>
        <source>Gradient Element</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Gradient Stops</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation>Farbstopps</translation>
    </message>
    <message>
        <source>Points</source>
        <extracomment>gradients/GradientElement.cpp</extracomment>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>%</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>%</translation>
    </message>
    <message>
        <source>Remove this gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>Diesen Farbstopp entfernen</translation>
    </message>
    <message>
        <source>Position of the new gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>Position des neuen Farbstopps</translation>
    </message>
    <message>
        <source>Color of the new gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>Farbe des neuen Farbstopps</translation>
    </message>
    <message>
        <source>Add this gradient stop</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>Diesen Farbstopp hinzufügen</translation>
    </message>
    <message>
        <source>Position of gradient stop %1</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>Position von Farbstopp %1</translation>
    </message>
    <message>
        <source>Color of gradient stop %1</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>Farbe von Farbstopp %1</translation>
    </message>
    <message>
        <source>Remove gradient stop %1</source>
        <extracomment>gradients/GradientStopWidget.cpp</extracomment>
        <translation>Farbstopp %1 entfernen</translation>
    </message>
    <message>
        <source>These elements have different gradient stops. Select one of them to edit its gradient stops.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation>Diese Elemente haben verschiedene Farbstopps. Zum Bearbeiten eines von ihnen auswählen.</translation>
    </message>
    <message>
        <source>These gradient stops cannot be read.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation>Diese Farbstopps sind nicht lesbar.</translation>
    </message>
    <message>
        <source>Gradient stops in this list: %1. Lists of %2 to %3 gradient stops can be edited here.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation>Farbstopps in dieser Liste: %1. Listen mit %2 bis %3 Farbstopps lassen sich hier bearbeiten.</translation>
    </message>
    <message>
        <source>Only gradient stops between 0% and 100% can be edited here.</source>
        <extracomment>gradients/GradientStopsEditor.cpp</extracomment>
        <translation>Hier lassen sich nur Farbstopps zwischen 0 % und 100 % bearbeiten.</translation>
    </message>
    <message>
        <source>The gradient stops must have at least 2 stops.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation>Ein Verlauf braucht mindestens 2 Farbstopps.</translation>
    </message>
    <message>
        <source>The gradient stops cannot have more than %1 stops.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation>Ein Verlauf kann nicht mehr als %1 Farbstopps haben.</translation>
    </message>
    <message>
        <source>Duplicate position values found.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation>Eine Position kommt mehrfach vor.</translation>
    </message>
    <message>
        <source>Gradient colors cannot be all transparent.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation>Die Farben eines Verlaufs können nicht alle durchsichtig sein.</translation>
    </message>
    <message>
        <source>Gradient colors cannot be all the same.</source>
        <extracomment>gradients/GradientStopsProperty.cpp</extracomment>
        <translation>Die Farben eines Verlaufs können nicht alle gleich sein.</translation>
    </message>
    <message>
        <source>Gradient preview</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation>Vorschau des Verlaufs</translation>
    </message>
    <message>
        <source>Modify Gradient Stops</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation>Farbstopps ändern</translation>
    </message>
    <message>
        <source>Add Gradient Stop</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation>Farbstopp hinzufügen</translation>
    </message>
    <message>
        <source>Gradient stop at position %1% already exists.</source>
        <extracomment>gradients/GradientStopsWidget.cpp</extracomment>
        <translation>An der Position %1 % gibt es schon einen Farbstopp.</translation>
    </message>
    <message>
        <source>The X and Y must be between 0% and 100%.</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>X und Y müssen zwischen 0 % und 100 % liegen.</translation>
    </message>
    <message>
        <source>The start position must be different from the final stop position.</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Die Startposition muss sich von der Endposition unterscheiden.</translation>
    </message>
    <message>
        <source>Linear Gradient Element</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Linearer Verlauf</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Final Stop</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Start X</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Start X</translation>
    </message>
    <message>
        <source>Start Y</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Start Y</translation>
    </message>
    <message>
        <source>Final Stop X</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Ende X</translation>
    </message>
    <message>
        <source>Final Stop Y</source>
        <extracomment>gradients/LinearGradientElement.cpp</extracomment>
        <translation>Ende Y</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>gradients/OutlineProperty.cpp</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Path Element</source>
        <extracomment>gradients/PathElement.cpp</extracomment>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>gradients/PathElement.cpp</extracomment>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Radial Gradient Element</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation>Radialer Verlauf</translation>
    </message>
    <message>
        <source> px</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation> px</translation>
    </message>
    <message>
        <source>If the given focal point is outside the circle defined by the center point
and radius, it will be re-adjusted to lie at a point on the circle where it
intersects with the line from the center to the focal point</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation>Liegt der Brennpunkt außerhalb des Kreises um den Mittelpunkt mit diesem
Radius, so rückt er an die Stelle des Kreises, an der ihn die Linie vom
Mittelpunkt zum Brennpunkt schneidet</translation>
    </message>
    <message>
        <source>Radius</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Focal Point</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation>Brennpunkt</translation>
    </message>
    <message>
        <source>Spread</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation>Fortsetzung</translation>
    </message>
    <message>
        <source>Focal Point X</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation>Brennpunkt X</translation>
    </message>
    <message>
        <source>Focal Point Y</source>
        <extracomment>gradients/RadialGradientElement.cpp</extracomment>
        <translation>Brennpunkt Y</translation>
    </message>
    <message>
        <source>Drag this point to resize</source>
        <extracomment>host/core/canvas/GraphicsItem.cpp</extracomment>
        <translation>Diesen Punkt ziehen, um die Größe zu ändern</translation>
    </message>
    <message>
        <source>Drag this line to resize</source>
        <extracomment>host/core/canvas/GraphicsItem.cpp</extracomment>
        <translation>Diese Linie ziehen, um die Größe zu ändern</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>host/core/canvas/GraphicsItem.cpp</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Maintain aspect ratio when resizing by mouse or through the editor</source>
        <extracomment>host/core/objects/ElementProperties.cpp</extracomment>
        <translation>Seitenverhältnis beim Ändern der Größe mit der Maus oder im Eingabefeld beibehalten</translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <extracomment>host/core/objects/ElementProperties.cpp</extracomment>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Border</source>
        <extracomment>host/core/objects/ElementProperties.cpp</extracomment>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Height</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Width</source>
        <extracomment>images/Image.cpp</extracomment>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Set to Image Size</source>
        <extracomment>images/ImageSizeEditor.cpp</extracomment>
        <translation>Auf Bildgröße setzen</translation>
    </message>
    <message>
        <source>Drag this point (#%1) to reshape</source>
        <extracomment>lines/GraphicsIrregularPolygon.cpp</extracomment>
        <translation>Diesen Punkt (Nr. %1) ziehen, um die Form zu ändern</translation>
    </message>
    <message>
        <source>This is the start point.</source>
        <extracomment>lines/GraphicsLine.cpp</extracomment>
        <translation>Dies ist der Anfangspunkt.</translation>
    </message>
    <message>
        <source>This is the end point.</source>
        <extracomment>lines/GraphicsLine.cpp</extracomment>
        <translation>Dies ist der Endpunkt.</translation>
    </message>
    <message>
        <source>A polygon needs at least %1 points and this one has %2: nothing is drawn. Add points or remove the element.</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation>Ein Polygon braucht mindestens %1 Punkte, und dieses hat %2: Gezeichnet wird nichts. Punkte hinzufügen oder das Element entfernen.</translation>
    </message>
    <message>
        <source>The list has %1 points. It is drawn and kept, but only lists of up to %2 points can be edited point by point: leave points out where they are not needed.</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation>Die Liste hat %1 Punkte. Sie wird gezeichnet und bleibt erhalten, aber nur Listen mit bis zu %2 Punkten lassen sich Punkt für Punkt bearbeiten: unnötige Punkte weglassen.</translation>
    </message>
    <message>
        <source>Polygon (Irregular)</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation>Polygon (frei)</translation>
    </message>
    <message>
        <source>Point List</source>
        <extracomment>lines/IrregularPolygon.cpp</extracomment>
        <translation>Punktliste</translation>
    </message>
    <message>
        <source>Line</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Angle (Clockwise)</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation>Winkel (im Uhrzeigersinn)</translation>
    </message>
    <message>
        <source>Thickness</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation>Strichstärke</translation>
    </message>
    <message>
        <source>Angle</source>
        <extracomment>lines/Line.cpp</extracomment>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Change Point List</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation>Punktliste ändern</translation>
    </message>
    <message>
        <source>These elements have different points. Select one of them to edit its points.</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation>Diese Elemente haben verschiedene Punkte. Zum Bearbeiten eines von ihnen auswählen.</translation>
    </message>
    <message>
        <source>These points cannot be read.</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation>Diese Punkte sind nicht lesbar.</translation>
    </message>
    <message>
        <source>Points in this list: %1. Lists of %2 to %3 points can be edited here.</source>
        <extracomment>lines/PointListEditor.cpp</extracomment>
        <translation>Punkte in dieser Liste: %1. Listen mit %2 bis %3 Punkten lassen sich hier bearbeiten.</translation>
    </message>
    <message>
        <source>Add a new point to form a square</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Quadrat</translation>
    </message>
    <message>
        <source>Add a new point to form a pentagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Fünfeck</translation>
    </message>
    <message>
        <source>Add a new point to form a hexagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Sechseck</translation>
    </message>
    <message>
        <source>Add a new point to form a heptagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Siebeneck</translation>
    </message>
    <message>
        <source>Add a new point to form an octagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Achteck</translation>
    </message>
    <message>
        <source>Add a new point to form a nonagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Neuneck</translation>
    </message>
    <message>
        <source>Add a new point to form a decagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Zehneck</translation>
    </message>
    <message>
        <source>Add a new point to form a hendecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Elfeck</translation>
    </message>
    <message>
        <source>Add a new point to form a dodecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Zwölfeck</translation>
    </message>
    <message>
        <source>Add a new point to form a tridecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Dreizehneck</translation>
    </message>
    <message>
        <source>Add a new point to form a tetradecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Vierzehneck</translation>
    </message>
    <message>
        <source>Add a new point to form a pentadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Fünfzehneck</translation>
    </message>
    <message>
        <source>Add a new point to form a hexadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Sechzehneck</translation>
    </message>
    <message>
        <source>Add a new point to form a heptadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Siebzehneck</translation>
    </message>
    <message>
        <source>Add a new point to form an octadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Achtzehneck</translation>
    </message>
    <message>
        <source>Add a new point to form an enneadecagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Neunzehneck</translation>
    </message>
    <message>
        <source>Add a new point to form an icosagon</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen: ergibt ein Zwanzigeck</translation>
    </message>
    <message>
        <source>The size is too small.</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Die Größe ist zu klein.</translation>
    </message>
    <message>
        <source>Add a point</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt hinzufügen</translation>
    </message>
    <message>
        <source>X:</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Y:</translation>
    </message>
    <message>
        <source>X of point %1</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>X von Punkt %1</translation>
    </message>
    <message>
        <source>Y of point %1</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Y von Punkt %1</translation>
    </message>
    <message>
        <source>Remove this point</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Diesen Punkt entfernen</translation>
    </message>
    <message>
        <source>Remove point %1</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkt %1 entfernen</translation>
    </message>
    <message>
        <source>The point&apos;s position uses an independent set of coordinates, 
it is not related to the polygon&apos;s position on canvas</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Die Punkte haben eigene Koordinaten, 
unabhängig von der Position des Polygons auf der Zeichenfläche</translation>
    </message>
    <message>
        <source>Rotate Points Clockwise</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Punkte im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>You cannot have more than %1 points</source>
        <extracomment>lines/PointListWidget.cpp</extracomment>
        <translation>Mehr als %1 Punkte sind nicht möglich</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <extracomment>shapes/Ellipse.cpp</extracomment>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Border Width</source>
        <extracomment>shapes/Ellipse.cpp</extracomment>
        <translation>Rahmenbreite</translation>
    </message>
    <message>
        <source>Border Color</source>
        <extracomment>shapes/Ellipse.cpp</extracomment>
        <translation>Rahmenfarbe</translation>
    </message>
    <message>
        <source>Polygon (Regular)</source>
        <extracomment>shapes/Polygon.cpp</extracomment>
        <translation>Polygon (regelmäßig)</translation>
    </message>
    <message>
        <source>Edges</source>
        <extracomment>shapes/Polygon.cpp</extracomment>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>Edge Length</source>
        <extracomment>shapes/Polygon.cpp</extracomment>
        <translation>Kantenlänge</translation>
    </message>
    <message>
        <source>The corner radius must be between 0 and 100.</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation>Der Eckenradius muss zwischen 0 und 100 liegen.</translation>
    </message>
    <message>
        <source>The corner radius must be smaller than or equal to %1 px.</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation>Der Eckenradius darf höchstens %1 px sein.</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <extracomment>shapes/Rectangle.cpp</extracomment>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>Align text to the top left corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text oben links ausrichten</translation>
    </message>
    <message>
        <source>Align text to the top</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text oben ausrichten</translation>
    </message>
    <message>
        <source>Align text to the top right corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text oben rechts ausrichten</translation>
    </message>
    <message>
        <source>Align text to the left</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text links ausrichten</translation>
    </message>
    <message>
        <source>Align text to the center</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text mittig ausrichten</translation>
    </message>
    <message>
        <source>Align text to the right</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text rechts ausrichten</translation>
    </message>
    <message>
        <source>Align text to the bottom left corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text unten links ausrichten</translation>
    </message>
    <message>
        <source>Align text to the bottom center</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text unten ausrichten</translation>
    </message>
    <message>
        <source>Align text to the bottom right corner</source>
        <extracomment>text/TextAlignButtonGroup.cpp</extracomment>
        <translation>Text unten rechts ausrichten</translation>
    </message>
    <message>
        <source>Text Box</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Textfeld</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Alignment</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Textausrichtung</translation>
    </message>
    <message>
        <source>Font</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Text Style</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Horizontal Alignment</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Waagerechte Ausrichtung</translation>
    </message>
    <message>
        <source>Vertical Alignment</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Senkrechte Ausrichtung</translation>
    </message>
    <message>
        <source>Style Color</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Stilfarbe</translation>
    </message>
    <message>
        <source>Word Spacing</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Wortabstand</translation>
    </message>
    <message>
        <source>Overline</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Überstrichen</translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>Font Size</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Letter Spacing</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Zeichenabstand</translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Font Family</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Schriftfamilie</translation>
    </message>
    <message>
        <source>Bold</source>
        <extracomment>text/TextBox.cpp</extracomment>
        <translation>Fett</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ModelTree</name>
    <message>
        <source>Changed, not saved yet</source>
        <translation>Geändert, noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Not in the archive yet</source>
        <translation>Noch nicht im Archiv</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Writable</source>
        <translation>Schreibbar</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Nicht geladen</translation>
    </message>
    <message>
        <source>A folder without a file of its own</source>
        <translation>Ein Ordner ohne eigene Datei</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Edits a model and puts it under version control.</source>
        <translation>Bearbeitet ein Modell und stellt es unter Versionsverwaltung.</translation>
    </message>
    <message>
        <source>A project file, or its folder.</source>
        <translation>Eine Projektdatei oder ihr Ordner.</translation>
    </message>
    <message>
        <source>Some settings could not be read.</source>
        <translation>Einige Einstellungen konnten nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::ArchiveChoice</name>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen…</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keins</translation>
    </message>
    <message>
        <source>An address, or a folder that is made when it does not exist</source>
        <translation>Eine Adresse oder ein Ordner; fehlt er, wird er angelegt</translation>
    </message>
    <message>
        <source>CM &amp;tool:</source>
        <translation>CM-&amp;Werkzeug:</translation>
    </message>
    <message>
        <source>&amp;Archive:</source>
        <translation>&amp;Archiv:</translation>
    </message>
    <message>
        <source>Folder of the archive</source>
        <translation>Ordner des Archivs</translation>
    </message>
    <message>
        <source>Lets you choose a folder</source>
        <translation>Lässt Sie einen Ordner wählen</translation>
    </message>
    <message>
        <source>The tool that keeps the versions</source>
        <translation>Das Werkzeug, das die Versionen aufbewahrt</translation>
    </message>
    <message>
        <source>Where the tool keeps them: an address or a folder</source>
        <translation>Wo das Werkzeug sie aufbewahrt: eine Adresse oder ein Ordner</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::AttributeTable</name>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::ConnectDialog</name>
    <message>
        <source>Connect to Archive</source>
        <translation>Mit Archiv verbinden</translation>
    </message>
    <message>
        <source>The archive keeps every revision of every unit. Units get into it when you add them.</source>
        <translation>Das Archiv bewahrt jeden Stand jeder Einheit. Einheiten kommen hinein, wenn Sie sie hinzufügen.</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>&amp;Verbinden</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::DesktopSession</name>
    <message>
        <source>Some files of the project have problems.</source>
        <translation>Einige Dateien des Projekts sind nicht in Ordnung.</translation>
    </message>
    <message>
        <source>This project brings commands of its own. They run as soon as you use version control. Trust them only when you trust where the project comes from.

Trust these commands?</source>
        <translation>Dieses Projekt bringt eigene Befehle mit. Sie laufen, sobald Sie die Versionsverwaltung benutzen. Vertrauen Sie ihnen nur, wenn Sie der Herkunft des Projekts vertrauen.

Diesen Befehlen vertrauen?</translation>
    </message>
    <message>
        <source>Not everything could be saved.</source>
        <translation>Nicht alles konnte gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::DiagramView</name>
    <message>
        <source>Diagram</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>The space bar goes from box to box, the arrow keys move a box.</source>
        <translation>Die Leertaste geht von Kasten zu Kasten, die Pfeiltasten verschieben einen Kasten.</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::MainWindow</name>
    <message>
        <source>Connected to the archive.</source>
        <translation>Mit dem Archiv verbunden.</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>This project is not under version control yet.</source>
        <translation>Dieses Projekt steht noch nicht unter Versionsverwaltung.</translation>
    </message>
    <message>
        <source>Co&amp;nnect to Archive…</source>
        <translation>Mit Archiv &amp;verbinden…</translation>
    </message>
    <message>
        <source>What the CM tool does and says appears here.</source>
        <translation>Hier erscheint, was das CM-Werkzeug tut und sagt.</translation>
    </message>
    <message>
        <source>CM Output</source>
        <translation>CM-Ausgabe</translation>
    </message>
    <message>
        <source>The module&apos;s steps appear here.</source>
        <translation>Hier erscheinen die Schritte des Moduls.</translation>
    </message>
    <message>
        <source>Trace Log</source>
        <translation>Ablaufprotokoll</translation>
    </message>
    <message numerus="yes">
        <source>%n unit(s)</source>
        <translation>
            <numerusform>%n Einheit</numerusform>
            <numerusform>%n Einheiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>&amp;Über %1</translation>
    </message>
    <message>
        <source>Version control for models.</source>
        <translation>Versionsverwaltung für Modelle.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>Projekt ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close Project</source>
        <translation>Projekt s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo Last Change</source>
        <translation>Letzte Änderung &amp;zurücknehmen</translation>
    </message>
    <message>
        <source>New U&amp;nit…</source>
        <translation>Neue &amp;Einheit…</translation>
    </message>
    <message>
        <source>CM &amp;Settings…</source>
        <translation>CM-Ein&amp;stellungen…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alles &amp;aufklappen</translation>
    </message>
    <message>
        <source>&amp;Collapse All</source>
        <translation>Alles &amp;zuklappen</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>C&amp;lear CM Output</source>
        <translation>CM-Ausgabe &amp;leeren</translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Version &amp;Control</source>
        <translation>&amp;Versionsverwaltung</translation>
    </message>
    <message>
        <source>CM &amp;Dialog…</source>
        <translation>CM-&amp;Dialog…</translation>
    </message>
    <message>
        <source>&amp;Refresh Status</source>
        <translation>Status &amp;auffrischen</translation>
    </message>
    <message>
        <source>Some of the units have changes that are not saved yet. Save them first?</source>
        <translation>Einige der Einheiten haben Änderungen, die noch nicht gespeichert sind. Zuerst speichern?</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n unit(s) done.</source>
        <translation>
            <numerusform>%1: %n Einheit erledigt.</numerusform>
            <numerusform>%1: %n Einheiten erledigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 came to nothing.</source>
        <translation>%1 ist nicht gelungen.</translation>
    </message>
    <message>
        <source>The project file is read-only, so its archive cannot be changed. Check the project out first.</source>
        <translation>Die Projektdatei ist schreibgeschützt, daher kann ihr Archiv nicht geändert werden. Checken Sie das Projekt zuerst aus.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Status auffrischen</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Projects (*.vdy *.vdr)</source>
        <translation>Projekte (*.vdy *.vdr)</translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet. Save them?</source>
        <translation>Das Projekt hat Änderungen, die noch nicht gespeichert sind. Speichern?</translation>
    </message>
    <message>
        <source>“%1” has changed on the disk, and you have changes of it that are not saved. Load it from the disk and drop your changes?</source>
        <translation>„%1“ wurde auf der Platte geändert, und Sie haben Änderungen daran, die nicht gespeichert sind. Von der Platte laden und Ihre Änderungen verwerfen?</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of the project are gone from the disk. Fetch them from the archive, or open the project anew.</source>
        <translation>
            <numerusform>%n Datei des Projekts ist von der Platte verschwunden. Holen Sie sie aus dem Archiv, oder öffnen Sie das Projekt neu.</numerusform>
            <numerusform>%n Dateien des Projekts sind von der Platte verschwunden. Holen Sie sie aus dem Archiv, oder öffnen Sie das Projekt neu.</numerusform>
        </translation>
    </message>
    <message>
        <source>The source control provider is at work: %1</source>
        <translation>Der Versionsverwaltungs-Anbieter arbeitet: %1</translation>
    </message>
    <message>
        <source>The units of the project; commands work on the selected ones, and the current one is edited beside</source>
        <translation>Die Einheiten des Projekts; Befehle wirken auf die ausgewählten, und die aktuelle wird daneben bearbeitet</translation>
    </message>
    <message>
        <source>Chooses the tool and the archive that keep the versions</source>
        <translation>Wählt Werkzeug und Archiv, die die Versionen aufbewahren</translation>
    </message>
    <message>
        <source>What the CM tool does and says</source>
        <translation>Was das CM-Werkzeug tut und sagt</translation>
    </message>
    <message>
        <source>The steps of the module, for whoever looks for a fault</source>
        <translation>Die Schritte des Moduls, für die Suche nach einem Fehler</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::ModelTreeModel</name>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Held by</source>
        <translation>Gehalten von</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>As the folder</source>
        <translation>Wie der Ordner</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>Folder of the project</source>
        <translation>Ordner des Projekts</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Model files that lie in the folder become units. None of them is changed.</source>
        <translation>Modelldateien, die im Ordner liegen, werden zu Einheiten. Keine davon wird geändert.</translation>
    </message>
    <message>
        <source>&amp;Make Project</source>
        <translation>Projekt &amp;anlegen</translation>
    </message>
    <message>
        <source>What the project is called; empty for the folder&apos;s name</source>
        <translation>Wie das Projekt heißt; leer für den Namen des Ordners</translation>
    </message>
    <message>
        <source>The folder that becomes a project</source>
        <translation>Der Ordner, der ein Projekt wird</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::NewUnitDialog</name>
    <message>
        <source>New Unit</source>
        <translation>Neue Einheit</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponente</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>What the unit is</source>
        <translation>Was die Einheit ist</translation>
    </message>
    <message>
        <source>The name of the unit, and of its file</source>
        <translation>Der Name der Einheit und ihrer Datei</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::ProgressPopup</name>
    <message numerus="yes">
        <source>About %n second(s) left</source>
        <translation>
            <numerusform>Noch etwa %n Sekunde</numerusform>
            <numerusform>Noch etwa %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minute(s) left</source>
        <translation>
            <numerusform>Noch etwa %n Minute</numerusform>
            <numerusform>Noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Version control</source>
        <translation>Versionsverwaltung</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
    <message>
        <source>Working…</source>
        <translation>In Arbeit…</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>Ends the command after the unit at hand</source>
        <translation>Beendet den Befehl nach der laufenden Einheit</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::ProviderNotice</name>
    <message>
        <source>The source control provider</source>
        <translation>Der Anbieter der Versionsverwaltung</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>Noch keine Antwort</translation>
    </message>
    <message>
        <source>It may still answer. The call runs in a library of others and cannot be ended safely: you can go on waiting, or leave the program. Before it ends everything that you have changed is saved; whether the provider has done its part, “Refresh Status” shows when you open the project again.</source>
        <translation>Eine Antwort kann noch kommen. Der Aufruf läuft in einer fremden Bibliothek und lässt sich nicht gefahrlos beenden: Sie können weiter warten oder das Programm verlassen. Vorher wird alles gespeichert, was Sie geändert haben; ob der Anbieter seinen Teil getan hat, zeigt „Status auffrischen“, wenn Sie das Projekt wieder öffnen.</translation>
    </message>
    <message>
        <source>Go On &amp;Waiting</source>
        <translation>&amp;Weiter warten</translation>
    </message>
    <message>
        <source>Save and &amp;Leave</source>
        <translation>Speichern und &amp;verlassen</translation>
    </message>
    <message>
        <source>Closes this notice; the call goes on</source>
        <translation>Schließt diesen Hinweis; der Aufruf läuft weiter</translation>
    </message>
    <message>
        <source>Saves what you have changed and ends the program</source>
        <translation>Speichert, was Sie geändert haben, und beendet das Programm</translation>
    </message>
    <message numerus="yes">
        <source>%1 has not answered for %n second(s), in its function %2.</source>
        <translation>
            <numerusform>%1 antwortet seit %n Sekunde nicht, in der Funktion %2.</numerusform>
            <numerusform>%1 antwortet seit %n Sekunden nicht, in der Funktion %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::SettingsDialog</name>
    <message>
        <source>CM Settings</source>
        <translation>CM-Einstellungen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keins</translation>
    </message>
    <message>
        <source>A provider library</source>
        <translation>Eine Provider-Bibliothek</translation>
    </message>
    <message>
        <source>CM &amp;tool:</source>
        <translation>CM-&amp;Werkzeug:</translation>
    </message>
    <message>
        <source>&amp;Archive:</source>
        <translation>&amp;Archiv:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Of &amp;every tool</source>
        <translation>&amp;Von allen Werkzeugen</translation>
    </message>
    <message>
        <source>Only what &amp;differs from the tool pack</source>
        <translation>Nur was vom Werkzeugpaket a&amp;bweicht</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Where to store the value</source>
        <translation>Wo der Wert abgelegt wird</translation>
    </message>
    <message>
        <source>&amp;Store</source>
        <translation>Ab&amp;legen</translation>
    </message>
    <message>
        <source>For the project</source>
        <translation>Für das Projekt</translation>
    </message>
    <message>
        <source>For this unit</source>
        <translation>Für diese Einheit</translation>
    </message>
    <message>
        <source>For me, everywhere</source>
        <translation>Für mich, überall</translation>
    </message>
    <message>
        <source>Select a property to see and change its value.</source>
        <translation>Wählen Sie eine Eigenschaft, um ihren Wert zu sehen und zu ändern.</translation>
    </message>
    <message>
        <source>&amp;Reset to Inherited</source>
        <translation>Auf &amp;Geerbtes zurücksetzen</translation>
    </message>
    <message>
        <source>Takes the value away where it is stored, so that the inherited counts</source>
        <translation>Entfernt den Wert dort, wo er gespeichert ist, sodass der geerbte gilt</translation>
    </message>
    <message>
        <source>What keeps the versions: a command-line tool, or a provider library</source>
        <translation>Was die Versionen aufbewahrt: ein Kommandozeilen-Werkzeug oder die Bibliothek eines Anbieters</translation>
    </message>
    <message>
        <source>Where the tool or the provider keeps the project</source>
        <translation>Wo das Werkzeug oder der Anbieter das Projekt aufbewahrt</translation>
    </message>
    <message>
        <source>Provider: %1</source>
        <translation>Anbieter: %1</translation>
    </message>
    <message>
        <source>Provider of this program, for Subversion</source>
        <translation>Anbieter dieses Programms, für Subversion</translation>
    </message>
    <message>
        <source>Shows only properties that contain this text</source>
        <translation>Zeigt nur Eigenschaften, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Shows the properties of tools that are not in use, too</source>
        <translation>Zeigt auch die Eigenschaften von Werkzeugen, die nicht benutzt werden</translation>
    </message>
    <message>
        <source>Shows only what the site, the user, the project or the unit has set</source>
        <translation>Zeigt nur, was Standort, Benutzer, Projekt oder Einheit festgelegt haben</translation>
    </message>
    <message>
        <source>Every property with its value and where that comes from; the selected one is edited below</source>
        <translation>Jede Eigenschaft mit ihrem Wert und dessen Herkunft; die ausgewählte wird unten bearbeitet</translation>
    </message>
    <message>
        <source>The value of the selected property</source>
        <translation>Der Wert der ausgewählten Eigenschaft</translation>
    </message>
    <message>
        <source>For whom the value is to count</source>
        <translation>Für wen der Wert gelten soll</translation>
    </message>
    <message>
        <source>Stores the value where the box above says</source>
        <translation>Speichert den Wert dort, wo es das Feld darüber sagt</translation>
    </message>
    <message>
        <source>%1 stays in use until the program is started anew.</source>
        <translation>%1 bleibt in Gebrauch, bis das Programm neu gestartet wird.</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::SettingsModel</name>
    <message>
        <source>Tool pack</source>
        <translation>Werkzeugpaket</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::UnitEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>Check &amp;Out…</source>
        <translation>Aus&amp;checken…</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Attributes of the element</source>
        <translation>Attribute des Elements</translation>
    </message>
    <message>
        <source>Add an element</source>
        <translation>Element hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected elements</source>
        <translation>Ausgewählte Elemente entfernen</translation>
    </message>
    <message>
        <source>Add an attribute to the element</source>
        <translation>Dem Element ein Attribut geben</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Add an attribute</source>
        <translation>Attribut hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected attributes</source>
        <translation>Ausgewählte Attribute entfernen</translation>
    </message>
    <message>
        <source>Add a box</source>
        <translation>Kasten hinzufügen</translation>
    </message>
    <message>
        <source>Connect the two selected boxes</source>
        <translation>Die beiden ausgewählten Kästen verbinden</translation>
    </message>
    <message>
        <source>Remove the selected boxes</source>
        <translation>Ausgewählte Kästen entfernen</translation>
    </message>
    <message>
        <source>This unit is read-only. Check it out to change it.</source>
        <translation>Diese Einheit ist schreibgeschützt. Checken Sie sie aus, um sie zu ändern.</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>&amp;Diagramm</translation>
    </message>
    <message>
        <source>&amp;Elements (%1)</source>
        <translation>&amp;Elemente (%1)</translation>
    </message>
    <message>
        <source>&amp;Attributes (%1)</source>
        <translation>&amp;Attribute (%1)</translation>
    </message>
    <message>
        <source>Add Box</source>
        <translation>Kasten hinzufügen</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Rename Box</source>
        <translation>Kasten umbenennen</translation>
    </message>
    <message>
        <source>Select the two boxes to connect first.</source>
        <translation>Wählen Sie zuerst die beiden Kästen aus, die verbunden werden sollen.</translation>
    </message>
    <message>
        <source>The name of the unit</source>
        <translation>Der Name der Einheit</translation>
    </message>
    <message>
        <source>What the unit is for, in your words</source>
        <translation>Wozu die Einheit dient, in Ihren Worten</translation>
    </message>
    <message>
        <source>Takes the unit from the archive to change it</source>
        <translation>Holt die Einheit aus dem Archiv, um sie zu ändern</translation>
    </message>
    <message>
        <source>What the unit consists of</source>
        <translation>Woraus die Einheit besteht</translation>
    </message>
    <message>
        <source>Those of the selected element</source>
        <translation>Die des ausgewählten Elements</translation>
    </message>
    <message>
        <source>Those of the unit itself</source>
        <translation>Die der Einheit selbst</translation>
    </message>
</context>
<context>
    <name>veldra::host::desktop::WelcomePage</name>
    <message>
        <source>Version control for models</source>
        <translation>Versionsverwaltung für Modelle</translation>
    </message>
    <message>
        <source>Open a project, or make one from a folder of model files.</source>
        <translation>Öffnen Sie ein Projekt, oder legen Sie eines aus einem Ordner mit Modelldateien an.</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>Projekt ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>A folder with a project file</source>
        <translation>Ein Ordner mit einer Projektdatei</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt…</translation>
    </message>
    <message>
        <source>From a folder, with a CM tool and an archive</source>
        <translation>Aus einem Ordner, mit CM-Werkzeug und Archiv</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Opens %1</source>
        <translation>Öffnet %1</translation>
    </message>
</context>
</TS>

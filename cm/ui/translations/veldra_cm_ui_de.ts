<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>veldra::CCMArcCoDlg</name>
    <message>
        <source>The archive holds nothing of this project yet. Add units to it first.</source>
        <translation>Das Archiv enthält noch nichts von diesem Projekt. Nehmen Sie zuerst Einheiten auf.</translation>
    </message>
</context>
<context>
    <name>veldra::CCMCiInfoDlg</name>
    <message>
        <source>&amp;Label:</source>
        <translation>&amp;Marke:</translation>
    </message>
    <message>
        <source>&amp;Keep checked out</source>
        <translation>Ausgecheckt &amp;lassen</translation>
    </message>
</context>
<context>
    <name>veldra::CCMCoInfoDlg</name>
    <message>
        <source>&amp;Label:</source>
        <translation>&amp;Marke:</translation>
    </message>
    <message>
        <source>&amp;Lock, to make changes</source>
        <translation>&amp;Sperren, um zu ändern</translation>
    </message>
    <message>
        <source>The latest version</source>
        <translation>Die neueste Version</translation>
    </message>
</context>
<context>
    <name>veldra::CCMConnectToArc</name>
    <message>
        <source>&amp;Archive:</source>
        <translation>&amp;Archiv:</translation>
    </message>
    <message>
        <source>A folder, a file or an address</source>
        <translation>Ein Ordner, eine Datei oder eine Adresse</translation>
    </message>
</context>
<context>
    <name>veldra::CCMDialog</name>
    <message>
        <source>Shows only units that contain this text</source>
        <translation>Zeigt nur Einheiten, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Filter units (Ctrl+F)</source>
        <translation>Einheiten filtern (Strg+F)</translation>
    </message>
    <message>
        <source>Units as a tree</source>
        <translation>Einheiten als Baum</translation>
    </message>
    <message>
        <source>Units as a list</source>
        <translation>Einheiten als Liste</translation>
    </message>
    <message>
        <source>What to do first</source>
        <translation>Was zuerst zu tun ist</translation>
    </message>
    <message>
        <source>CM: %1</source>
        <translation>CM: %1</translation>
    </message>
    <message>
        <source>Configuration Management</source>
        <translation>Konfigurationsverwaltung</translation>
    </message>
    <message>
        <source>No project is open. Open one, then come back here.</source>
        <translation>Kein Projekt ist geöffnet. Öffnen Sie eines und kommen Sie dann zurück.</translation>
    </message>
    <message>
        <source>This project has no units with files of their own yet. Save the model, then add its units to the archive.</source>
        <translation>Dieses Projekt hat noch keine Einheiten mit eigenen Dateien. Speichern Sie das Modell und nehmen Sie dann seine Einheiten ins Archiv auf.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n unit(s)</source>
        <translation>
            <numerusform>%1 von %n Einheit</numerusform>
            <numerusform>%1 von %n Einheiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unit(s)</source>
        <translation>
            <numerusform>%n Einheit</numerusform>
            <numerusform>%n Einheiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n selected</source>
        <translation>
            <numerusform>%1, %n gewählt</numerusform>
            <numerusform>%1, %n gewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::CCMDiffDialog</name>
    <message>
        <source>&amp;First version:</source>
        <translation>&amp;Erste Version:</translation>
    </message>
    <message>
        <source>&amp;Second version:</source>
        <translation>&amp;Zweite Version:</translation>
    </message>
</context>
<context>
    <name>veldra::CCMFetchDlg</name>
    <message>
        <source>&amp;Label or version:</source>
        <translation>&amp;Marke oder Version:</translation>
    </message>
    <message>
        <source>The latest version</source>
        <translation>Die neueste Version</translation>
    </message>
</context>
<context>
    <name>veldra::CCMLockInfoDlg</name>
    <message>
        <source>&amp;Label:</source>
        <translation>&amp;Marke:</translation>
    </message>
</context>
<context>
    <name>veldra::CCMSccInfoDlg</name>
    <message>
        <source>&amp;Keep checked out</source>
        <translation>Ausgecheckt &amp;lassen</translation>
    </message>
    <message>
        <source>&amp;Advanced...</source>
        <translation>&amp;Erweitert...</translation>
    </message>
    <message>
        <source>Advanced options</source>
        <translation>Erweiterte Optionen</translation>
    </message>
    <message>
        <source>Opens the provider&apos;s own options</source>
        <translation>Öffnet die Optionen des Anbieters</translation>
    </message>
    <message>
        <source>&amp;Lock, to make changes</source>
        <translation>&amp;Sperren, um zu ändern</translation>
    </message>
</context>
<context>
    <name>veldra::CCMUnitArchiveDlg</name>
    <message>
        <source>Archive of %1</source>
        <translation>Archiv von %1</translation>
    </message>
    <message>
        <source>Archive of a Unit</source>
        <translation>Archiv einer Einheit</translation>
    </message>
    <message>
        <source>Archive &amp;path:</source>
        <translation>Archiv&amp;pfad:</translation>
    </message>
    <message>
        <source>Archive path</source>
        <translation>Archivpfad</translation>
    </message>
    <message>
        <source>F&amp;ile...</source>
        <translation>&amp;Datei...</translation>
    </message>
    <message>
        <source>F&amp;older...</source>
        <translation>&amp;Ordner...</translation>
    </message>
    <message>
        <source>&amp;Associate</source>
        <translation>&amp;Zuordnen</translation>
    </message>
    <message>
        <source>Associate &amp;New...</source>
        <translation>&amp;Neu zuordnen...</translation>
    </message>
    <message>
        <source>&amp;Disassociate</source>
        <translation>&amp;Trennen</translation>
    </message>
</context>
<context>
    <name>veldra::CCoBranch</name>
    <message>
        <source>&amp;Branch:</source>
        <translation>&amp;Zweig:</translation>
    </message>
</context>
<context>
    <name>veldra::CMSyncDlg</name>
    <message>
        <source>The model and the archive are in step.</source>
        <translation>Modell und Archiv stimmen überein.</translation>
    </message>
    <message>
        <source>Compare by</source>
        <translation>Vergleichen nach</translation>
    </message>
    <message>
        <source>What tells whether a unit is up to date</source>
        <translation>Woran sich zeigt, ob eine Einheit auf dem neuesten Stand ist</translation>
    </message>
    <message>
        <source>Version in the header</source>
        <translation>Version im Kopf der Datei</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>The label whose versions are compared</source>
        <translation>Die Marke, mit deren Versionen verglichen wird</translation>
    </message>
    <message>
        <source>How units are compared</source>
        <translation>Wie Einheiten verglichen werden</translation>
    </message>
    <message>
        <source>Compare &amp;by:</source>
        <translation>&amp;Vergleichen nach:</translation>
    </message>
    <message>
        <source>&amp;Label:</source>
        <translation>&amp;Marke:</translation>
    </message>
</context>
<context>
    <name>veldra::CommandWindow</name>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>veldra::Control</name>
    <message>
        <source>The units of the project in their packages; commands work on the selected ones</source>
        <translation>Die Einheiten des Projekts in ihren Paketen; Befehle gelten für die gewählten</translation>
    </message>
    <message>
        <source>The units of the project, sorted by the column that was clicked; commands work on the selected ones</source>
        <translation>Die Einheiten des Projekts, nach der angeklickten Spalte sortiert; Befehle gelten für die gewählten</translation>
    </message>
    <message>
        <source>Closes the window; nothing is changed by that</source>
        <translation>Schließt das Fenster; geändert wird dadurch nichts</translation>
    </message>
    <message>
        <source>Selects the units on which the last command failed</source>
        <translation>Wählt die Einheiten, an denen der letzte Befehl gescheitert ist</translation>
    </message>
    <message>
        <source>You go on changing the units and keep their locks</source>
        <translation>Sie ändern die Einheiten weiter und behalten ihre Sperren</translation>
    </message>
    <message>
        <source>A name under which this version can be found again; may stay empty</source>
        <translation>Ein Name, unter dem diese Version wiederzufinden ist; darf leer bleiben</translation>
    </message>
    <message>
        <source>Everything inside the selected units is checked in, too</source>
        <translation>Auch alles innerhalb der gewählten Einheiten wird eingecheckt</translation>
    </message>
    <message>
        <source>What code generation keeps about the units goes along</source>
        <translation>Was die Codegenerierung über die Einheiten festhält, geht mit</translation>
    </message>
    <message>
        <source>The version to check out; empty for the newest</source>
        <translation>Die Version zum Auschecken; leer für die neueste</translation>
    </message>
    <message>
        <source>Nobody else can change the units until you check them in</source>
        <translation>Niemand sonst kann die Einheiten ändern, bis Sie sie einchecken</translation>
    </message>
    <message>
        <source>Everything inside the selected units is checked out, too</source>
        <translation>Auch alles innerhalb der gewählten Einheiten wird ausgecheckt</translation>
    </message>
    <message>
        <source>The units stay checked out by you</source>
        <translation>Die Einheiten bleiben von Ihnen ausgecheckt</translation>
    </message>
    <message>
        <source>Everything inside the selected units takes part, too</source>
        <translation>Auch alles innerhalb der gewählten Einheiten nimmt teil</translation>
    </message>
    <message>
        <source>Opens the options that the source control provider has of its own</source>
        <translation>Öffnet die eigenen Optionen des Versionsverwaltungs-Anbieters</translation>
    </message>
    <message>
        <source>The version that is meant; empty for the newest</source>
        <translation>Die Version, die gemeint ist; leer für die neueste</translation>
    </message>
    <message>
        <source>The folder, file or address of the archive</source>
        <translation>Der Ordner, die Datei oder die Adresse des Archivs</translation>
    </message>
    <message>
        <source>Lets you choose a file or a folder</source>
        <translation>Lässt Sie eine Datei oder einen Ordner wählen</translation>
    </message>
    <message>
        <source>The label or version to compare with; empty for the newest</source>
        <translation>Die Marke oder Version, mit der verglichen wird; leer für die neueste</translation>
    </message>
    <message>
        <source>Everything inside the unit takes part, too</source>
        <translation>Auch alles innerhalb der Einheit nimmt teil</translation>
    </message>
    <message>
        <source>The version on the left side</source>
        <translation>Die Version auf der linken Seite</translation>
    </message>
    <message>
        <source>The version on the right side</source>
        <translation>Die Version auf der rechten Seite</translation>
    </message>
    <message>
        <source>The units are yours to change</source>
        <translation>Die Einheiten gehören Ihnen zum Ändern</translation>
    </message>
    <message>
        <source>The units are only read</source>
        <translation>Die Einheiten werden nur gelesen</translation>
    </message>
    <message>
        <source>What the archive holds; commands work on the selected entries</source>
        <translation>Was das Archiv enthält; Befehle gelten für die gewählten Einträge</translation>
    </message>
    <message>
        <source>What differs between the model and the archive; the selected entries are taken over</source>
        <translation>Worin sich Modell und Archiv unterscheiden; die gewählten Einträge werden übernommen</translation>
    </message>
    <message>
        <source>Where the unit is kept in the archive</source>
        <translation>Wo die Einheit im Archiv liegt</translation>
    </message>
    <message>
        <source>Connects the unit with that path</source>
        <translation>Verbindet die Einheit mit diesem Pfad</translation>
    </message>
    <message>
        <source>Connects the unit with an archive project of your choice</source>
        <translation>Verbindet die Einheit mit einem Archivprojekt Ihrer Wahl</translation>
    </message>
    <message>
        <source>Takes the connection of the unit away</source>
        <translation>Hebt die Verbindung der Einheit auf</translation>
    </message>
    <message>
        <source>Lets you choose a file</source>
        <translation>Lässt Sie eine Datei wählen</translation>
    </message>
    <message>
        <source>Lets you choose a folder</source>
        <translation>Lässt Sie einen Ordner wählen</translation>
    </message>
    <message>
        <source>The branch to check out</source>
        <translation>Der Zweig zum Auschecken</translation>
    </message>
    <message>
        <source>Does it and closes the window</source>
        <translation>Führt es aus und schließt das Fenster</translation>
    </message>
    <message>
        <source>Closes the window without doing anything</source>
        <translation>Schließt das Fenster, ohne etwas zu tun</translation>
    </message>
    <message>
        <source>The unit that is asked about</source>
        <translation>Die Einheit, nach der gefragt wird</translation>
    </message>
    <message>
        <source>For this one</source>
        <translation>Für diese</translation>
    </message>
    <message>
        <source>For this one and all that follow</source>
        <translation>Für diese und alle folgenden</translation>
    </message>
    <message>
        <source>Not for this one</source>
        <translation>Nicht für diese</translation>
    </message>
    <message>
        <source>Neither for this one nor for any that follows</source>
        <translation>Weder für diese noch für eine der folgenden</translation>
    </message>
    <message>
        <source>Ends the command</source>
        <translation>Beendet den Befehl</translation>
    </message>
</context>
<context>
    <name>veldra::FailureStrip</name>
    <message>
        <source>Failed units</source>
        <translation>Fehlgeschlagene Einheiten</translation>
    </message>
    <message>
        <source>&amp;Select Them</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Select the units that failed</source>
        <translation>Die fehlgeschlagenen Einheiten auswählen</translation>
    </message>
    <message numerus="yes">
        <source>%1 did not succeed for %n unit(s).</source>
        <translation>
            <numerusform>%1 ist bei %n Einheit nicht gelungen.</numerusform>
            <numerusform>%1 ist bei %n Einheiten nicht gelungen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::ItemWindow</name>
    <message>
        <source>Filter entries (Ctrl+F)</source>
        <translation>Einträge filtern (Strg+F)</translation>
    </message>
    <message>
        <source>Shows only entries that contain this text</source>
        <translation>Zeigt nur Einträge, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Nothing to show</source>
        <translation>Nichts zu zeigen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n row(s)</source>
        <translation>
            <numerusform>%1 von %n Eintrag</numerusform>
            <numerusform>%1 von %n Einträgen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n selected</source>
        <translation>
            <numerusform>%1, %n gewählt</numerusform>
            <numerusform>%1, %n gewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldra::ListView</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>veldra::OptionDialog</name>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>What was changed, and why. It is kept in the archive.</source>
        <translation>Was geändert wurde und warum. Es wird im Archiv aufbewahrt.</translation>
    </message>
    <message>
        <source>What was changed, and why</source>
        <translation>Was geändert wurde und warum</translation>
    </message>
    <message>
        <source>The archive takes no comment here</source>
        <translation>Das Archiv nimmt hier keinen Kommentar</translation>
    </message>
    <message>
        <source>&amp;Comment:</source>
        <translation>&amp;Kommentar:</translation>
    </message>
    <message>
        <source>With all units &amp;below</source>
        <translation>Mit allen Einheiten &amp;darunter</translation>
    </message>
    <message>
        <source>Include &amp;information files</source>
        <translation>&amp;Informationsdateien einbeziehen</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Units:</source>
        <translation>Einheiten:</translation>
    </message>
</context>
<context>
    <name>veldra::PathBrowse</name>
    <message>
        <source>Choose a File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>&amp;Durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Folder...</source>
        <translation>&amp;Ordner...</translation>
    </message>
    <message>
        <source>F&amp;ile...</source>
        <translation>&amp;Datei...</translation>
    </message>
</context>
<context>
    <name>veldra::ProgressStrip</name>
    <message>
        <source>Progress of the command</source>
        <translation>Fortschritt des Befehls</translation>
    </message>
    <message>
        <source>%1 is running...</source>
        <translation>%1 läuft...</translation>
    </message>
    <message>
        <source>%1: %2 of %3, %4</source>
        <translation>%1: %2 von %3, %4</translation>
    </message>
    <message>
        <source>, about %1 s left</source>
        <translation>, noch etwa %1 s</translation>
    </message>
    <message>
        <source>%1 (provider: %2)</source>
        <translation>%1 (Anbieter: %2)</translation>
    </message>
</context>
<context>
    <name>veldra::QuestionWindow</name>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja, &amp;alle</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ein, keine</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ab&amp;brechen</translation>
    </message>
</context>
</TS>

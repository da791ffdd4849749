<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CountLine</name>
    <message>
        <source>The download size is that of the marked packages alone, without what they depend on
and without the members of marked groups.</source>
        <translation>Die Downloadgröße ist die der vorgemerkten Pakete allein, ohne das, was sie benötigen,
und ohne die Mitglieder vorgemerkter Gruppen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln listed</source>
        <translation>
            <numerusform>%Ln gelistet</numerusform>
            <numerusform>%Ln gelistet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to update</source>
        <translation>
            <numerusform>%Ln zu aktualisieren</numerusform>
            <numerusform>%Ln zu aktualisieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to install</source>
        <translation>
            <numerusform>%Ln zu installieren</numerusform>
            <numerusform>%Ln zu installieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to remove</source>
        <translation>
            <numerusform>%Ln zu entfernen</numerusform>
            <numerusform>%Ln zu entfernen</numerusform>
        </translation>
    </message>
    <message>
        <source>; marked: %1</source>
        <translation>; vorgemerkt: %1</translation>
    </message>
    <message>
        <source>; %1 to download</source>
        <translation>; %1 herunterzuladen</translation>
    </message>
</context>
<context>
    <name>EntryCheck</name>
    <message>
        <source>a blank</source>
        <translation>einem Leerzeichen</translation>
    </message>
    <message>
        <source>a line break</source>
        <translation>einem Zeilenumbruch</translation>
    </message>
    <message>
        <source>the character %1</source>
        <translation>dem Zeichen %1</translation>
    </message>
    <message>
        <source>the character U+%1</source>
        <translation>dem Zeichen U+%1</translation>
    </message>
    <message>
        <source>DNF takes no repository named main</source>
        <translation>DNF nimmt keine Paketquelle namens main</translation>
    </message>
    <message>
        <source>DNF takes no Identifier with %1</source>
        <translation>DNF nimmt keine Kennung mit %1</translation>
    </message>
    <message>
        <source>The Identifier %1 differs in case only</source>
        <translation>Die Kennung %1 unterscheidet sich nur in Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>DNF leaves out the whole file for a line without &quot;=&quot;: %1</source>
        <translation>Wegen einer Zeile ohne „=“ lässt DNF die ganze Datei aus: %1</translation>
    </message>
    <message>
        <source>DNF does not know the option %1.</source>
        <translation>DNF kennt die Option %1 nicht.</translation>
    </message>
    <message>
        <source>%1  Is %2 meant?</source>
        <translation>%1  Ist %2 gemeint?</translation>
    </message>
    <message>
        <source>The password consists of mask characters only.  It was copied from a field that hides it.  Type the password itself.</source>
        <translation>Das Passwort besteht nur aus Maskierungszeichen.  Es wurde aus einem Feld kopiert, das es verbirgt.  Geben Sie das Passwort selbst ein.</translation>
    </message>
</context>
<context>
    <name>Execute</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>fork() failed; errno = %1 (%2)</source>
        <translation>fork() ist fehlgeschlagen; errno = %1 (%2)</translation>
    </message>
    <message>
        <source>%1() failed; errno = %2 (%3)</source>
        <translation>%1() ist fehlgeschlagen; errno = %2 (%3)</translation>
    </message>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Bitstream Vera Sans Mono</source>
        <translation>Bitstream Vera Sans Mono</translation>
    </message>
    <message>
        <source>DejaVu Sans Mono</source>
        <translation>DejaVu Sans Mono</translation>
    </message>
    <message>
        <source>Monospace</source>
        <translation>Monospace</translation>
    </message>
    <message>
        <source>Courier</source>
        <translation>Courier</translation>
    </message>
</context>
<context>
    <name>HProgressBar</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>JobProgress</name>
    <message>
        <source>Total progress</source>
        <translation>Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Progress of the current step</source>
        <translation>Fortschritt des laufenden Schritts</translation>
    </message>
</context>
<context>
    <name>Log::FindBar</name>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorige</translation>
    </message>
</context>
<context>
    <name>Log::Window</name>
    <message>
        <source>VOK Log</source>
        <translation>VOK – Protokoll</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation>Schwelle, jenseits der genauere Meldungen des Protokolls wegbleiben.
Höhere Stufen zeigen mehr Einzelheiten.
Gültig sind 0 .. %1.
Vorgabe ist %2.
Höhere Stufen enthalten Angaben zur Fehlersuche.
Dies entspricht der Option debuglevel (-d) von yum.</translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation>Detailstufe</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Find a text in the Log Window (Ctrl+F)</source>
        <translation>Einen Text im Protokoll suchen (Strg+F)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>S&amp;peichern ...</translation>
    </message>
    <message>
        <source>Save the log messages up to the Detail level to a file</source>
        <translation>Die Meldungen bis zur Detailstufe in eine Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation>Das Protokollfenster schließen</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>VOK Log Error</source>
        <translation>VOK – Fehler beim Protokoll</translation>
    </message>
    <message>
        <source>Unable to save the log to %1:
%2</source>
        <translation>Das Protokoll lässt sich nicht in %1 speichern:
%2</translation>
    </message>
    <message numerus="yes">
        <source> ... (%n characters more; Save writes them all)</source>
        <translation>
            <numerusform> ... (%n weiteres Zeichen; Speichern schreibt es mit)</numerusform>
            <numerusform> ... (%n weitere Zeichen; Speichern schreibt sie alle)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The search was cancelled; the table is as before.</source>
        <translation>Die Suche wurde abgebrochen; die Tabelle ist wie zuvor.</translation>
    </message>
    <message>
        <source>The search has not seen the change logs of available packages: they were not loaded.</source>
        <translation>Die Suche hat die Änderungsprotokolle der verfügbaren Pakete nicht gesehen: Sie waren nicht geladen.</translation>
    </message>
    <message>
        <source>The search has not seen the file lists of available packages: they were not loaded.</source>
        <translation>Die Suche hat die Dateilisten der verfügbaren Pakete nicht gesehen: Sie waren nicht geladen.</translation>
    </message>
    <message>
        <source>The search has not seen the file lists and change logs of available packages: they were not loaded.</source>
        <translation>Die Suche hat die Dateilisten und Änderungsprotokolle der verfügbaren Pakete nicht gesehen: Sie waren nicht geladen.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation>Regulärer Ausdruck, mit dem alle Felder eines Pakets verglichen werden</translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation>Nach dem links angegebenen regulären Ausdruck suchen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation>Regulärer Ausdruck für die Textfelder, die in der Tabelle zu sehen sind</translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation>Den links angegebenen Filter anwenden</translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation>Wie ein regulärer Ausdruck die Pakete der Tabelle auswählt:
	Filtern nimmt die Textfelder, die in der Tabelle zu sehen sind, wie durch Leerzeichen getrennt.
	Suchen nimmt alle Felder der Pakete, auch Dateien, Änderungsprotokoll, Abhängigkeiten usw.,
	jedes für sich. Das dauert erheblich länger.</translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation>%1 (Dazu müssen weitere Daten geladen werden.)</translation>
    </message>
    <message>
        <source>Unlisted Actions</source>
        <translation>Verdeckte Aktionen</translation>
    </message>
    <message>
        <source>Some packages have actions specified, but because of the current
Mode, Filter, Search, State, Duplicates, and Groups settings,
these packages are not listed currently.
Pressing Apply will cause these actions to occur nonetheless.</source>
        <translation>Für einige Pakete sind Aktionen festgelegt, doch wegen der Einstellungen
von Modus, Filter, Suche, Zustand, Duplikaten und Gruppen
sind diese Pakete zurzeit nicht gelistet.
„Aktionen anwenden“ führt ihre Aktionen trotzdem aus.</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programm</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>Protoko&amp;ll</translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation>Paket&amp;quellen</translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation>Konfiguration b&amp;earbeiten</translation>
    </message>
    <message>
        <source>&amp;Cache</source>
        <translation>&amp;Zwischenspeicher</translation>
    </message>
    <message>
        <source>Clean Headers</source>
        <translation>Paketköpfe löschen</translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation>Pakete löschen</translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation>XML-Metadaten löschen</translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation>Pickle-Daten löschen</translation>
    </message>
    <message>
        <source>Clean Sqlite Data</source>
        <translation>SQLite-Daten löschen</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation>Handbuch (HTML)</translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation>Handbuch (PDF)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>R&amp;ead the Packages</source>
        <translation>Pakete &amp;einlesen</translation>
    </message>
    <message>
        <source>Collects the packages of the system and of the repositories</source>
        <translation>Ermittelt die Pakete des Systems und der Paketquellen</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation>Nur Pakete zeigen, die aktualisiert,
installiert oder entfernt werden können; oder alle Pakete</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Include Duplicates</source>
        <translation>Mit Duplikaten</translation>
    </message>
    <message>
        <source>Whether or not filter should include packages with duplicate names.
If unchecked, the package with the architecture closest to the base architecture is shown.</source>
        <translation>Ob der Filter mehrere Pakete desselben Namens durchlässt.
Sonst wird nur das Paket gezeigt, dessen Architektur der Grundarchitektur am nächsten kommt.</translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation>Mit Gruppen</translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation>Ob der Filter Paketgruppen durchlässt</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>Be&amp;schreibung</translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation>Öffnet ein Fenster mit einer ausführlichen Beschreibung des aktuellen Pakets</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>&amp;Größe anpassen</translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation>Spalten und Fenster auf die günstigste Größe bringen</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation>Die Liste der installierten und der verfügbaren Pakete neu einlesen.
Zeigt neue Aktualisierungen in den Paketquellen und Pakete, die von Hand installiert wurden.</translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation>Auswahl &amp;vormerken</translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>Merkt alle ausgewählten Pakete, die nicht installiert sind, zum Installieren vor und
alle ausgewählten Pakete, die installiert, aber veraltet sind, zum Aktualisieren.
Wendet die Aktionen nicht von selbst an.</translation>
    </message>
    <message>
        <source>Set &amp;Update of Listed</source>
        <translation>A&amp;ktualisierungen vormerken</translation>
    </message>
    <message>
        <source>Sets the Action to Update for any packages which are Installed but Out-of-date,
and which are currently listed based on the the Mode, Filter, Search, State, Duplicates, and Groups settings.
Does not Apply Actions automatically.</source>
        <translation>Merkt alle Pakete zum Aktualisieren vor, die installiert, aber veraltet sind
und die nach Modus, Filter, Suche, Zustand, Duplikaten und Gruppen zurzeit gelistet sind.
Wendet die Aktionen nicht von selbst an.</translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation>Löscht alle festgelegten Aktionen (Aktualisieren, Installieren und Entfernen)</translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation>Aktionen &amp;anwenden</translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation>Führt die festgelegten Aktionen aus (Aktualisieren, Installieren und Entfernen)</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Progress of the current step</source>
        <translation>Fortschritt des laufenden Schritts</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Stops the running operation.
An rpm transaction that has begun cannot be stopped.</source>
        <translation>Bricht den laufenden Vorgang ab.
Eine begonnene rpm-Transaktion lässt sich nicht abbrechen.</translation>
    </message>
    <message>
        <source>VOK</source>
        <translation>VOK</translation>
    </message>
    <message>
        <source>The packages were not collected again; the table is as before.</source>
        <translation>Die Pakete wurden nicht neu eingelesen; die Tabelle ist wie zuvor.</translation>
    </message>
    <message>
        <source>The packages were not collected. Refresh tries again.</source>
        <translation>Die Pakete wurden nicht eingelesen. „Neu einlesen“ versucht es noch einmal.</translation>
    </message>
    <message>
        <source>The search was cancelled. The table lists nothing until it has been run.</source>
        <translation>Die Suche wurde abgebrochen. Die Tabelle bleibt leer, bis sie durchgeführt ist.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>No longer possible, and not marked any more: %1.</source>
        <translation>Nicht mehr möglich und nicht mehr vorgemerkt: %1.</translation>
    </message>
    <message>
        <source>Marked now in another version: %1.</source>
        <translation>Jetzt in einer anderen Version vorgemerkt: %1.</translation>
    </message>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation>Löscht die in %1 zwischengespeicherten Köpfe von RPM-Paketen</translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation>Löscht die in %1 zwischengespeicherten RPM-Pakete
(um Plattenplatz zu gewinnen)</translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation>Löscht die in %1 zwischengespeicherten XML-Metadaten
(zusammen mit „Pickle-Daten löschen“ nützlich,
 um neue Listen verfügbarer Pakete zu laden)</translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation>Löscht die in %1 zwischengespeicherten Pickle-Daten
(zusammen mit „XML-Metadaten löschen“ nützlich,
 um neue Listen verfügbarer Pakete zu laden)</translation>
    </message>
    <message>
        <source>Clean sqlite data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation>Löscht die in %1 zwischengespeicherten SQLite-Daten
(zusammen mit „XML-Metadaten löschen“ nützlich,
 um neue Listen verfügbarer Pakete zu laden)</translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation>Löscht alle in %1 zwischengespeicherten Daten</translation>
    </message>
    <message>
        <source>VOK Yum Warning</source>
        <translation>VOK – Yum-Warnung</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Neu einlesen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>&lt;h3&gt;VOK %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VOK, Vokmanager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>&lt;h3&gt;VOK %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VOK, Vokmanager, ist eine grafische Oberfläche, mit der sich die installierten RPM-Pakete eines Systems verändern lassen.&lt;/p&gt;&lt;p&gt;Möglichkeiten:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Neue Pakete installieren oder vorhandene aktualisieren, heruntergeladen aus einer yum-Paketquelle&lt;/li&gt;&lt;li&gt;Vorhandene Pakete entfernen.&lt;/li&gt;&lt;li&gt;Die Paketquellen einrichten, aus denen neue und aktualisierte Pakete kommen.&lt;/li&gt;&lt;li&gt;Installierte Pakete ansehen und solche, die sich installieren oder aktualisieren lassen&lt;/li&gt;&lt;li&gt;Gruppen von Paketen installieren, aktualisieren oder entfernen&lt;/li&gt;&lt;li&gt;Suiten von Paketen installieren oder aktualisieren&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Cancelling the running operation.</source>
        <translation>Der laufende Vorgang wird abgebrochen.</translation>
    </message>
    <message>
        <source>VOK Transaction Report</source>
        <translation>VOK – Bericht der Transaktion</translation>
    </message>
    <message>
        <source>Cancelling the running operation; VOK quits when it has stopped.</source>
        <translation>Der laufende Vorgang wird abgebrochen; VOK wird beendet, sobald er angehalten hat.</translation>
    </message>
    <message>
        <source>VOK quits when the running operation is done.</source>
        <translation>VOK wird beendet, sobald der laufende Vorgang fertig ist.</translation>
    </message>
    <message>
        <source>An rpm transaction is running and cannot be stopped. Close again to quit when it is done.</source>
        <translation>Eine rpm-Transaktion läuft und lässt sich nicht abbrechen. Schließen Sie noch einmal, damit VOK danach beendet wird.</translation>
    </message>
    <message>
        <source>Left out for lack of the right to read: %1</source>
        <translation>Mangels Leserecht ausgelassen: %1</translation>
    </message>
    <message>
        <source>The packages have not been read yet.</source>
        <translation>Die Pakete sind noch nicht eingelesen.</translation>
    </message>
    <message>
        <source>Reading the packages...</source>
        <translation>Pakete werden eingelesen ...</translation>
    </message>
    <message>
        <source>&lt;p&gt;More information is on the web page &lt;a href=&quot;%1&quot;&gt;%1&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Mehr dazu auf der Webseite &lt;a href=&quot;%1&quot;&gt;%1&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Clear Actions</source>
        <translation>Aktionen löschen</translation>
    </message>
    <message>
        <source>The manual is missing: there is no file
%1

It is installed together with VOK, unless VOK was built without the programs that make it.</source>
        <translation>Das Handbuch fehlt: Es gibt keine Datei
%1

Es wird mit VOK installiert, außer wenn VOK ohne die Programme gebaut wurde, die es erzeugen.</translation>
    </message>
    <message>
        <source>The manual cannot be opened:
%1

%2</source>
        <translation>Das Handbuch lässt sich nicht öffnen:
%1

%2</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The installed packages have changed.</source>
        <translation>Die installierten Pakete haben sich geändert.</translation>
    </message>
    <message>
        <source>Installed packages and configuration have changed.</source>
        <translation>Installierte Pakete und Konfiguration haben sich geändert.</translation>
    </message>
    <message>
        <source>The configuration has changed.</source>
        <translation>Die Konfiguration hat sich geändert.</translation>
    </message>
    <message>
        <source>Another program did that since the packages were collected. What is marked stays marked in a refresh where that is still possible.</source>
        <translation>Das war ein anderes Programm, seit die Pakete eingelesen wurden. Was vorgemerkt ist, bleibt beim Neueinlesen vorgemerkt, soweit es noch möglich ist.</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Geändert: %1</translation>
    </message>
    <message>
        <source>Another program has changed the installed packages since they were collected. Nothing was applied.</source>
        <translation>Ein anderes Programm hat die installierten Pakete verändert, seit sie eingelesen wurden. Es wurde nichts angewendet.</translation>
    </message>
    <message>
        <source>The configuration has changed since the packages were collected. Nothing was applied.</source>
        <translation>Die Konfiguration hat sich geändert, seit die Pakete eingelesen wurden. Es wurde nichts angewendet.</translation>
    </message>
    <message>
        <source>%1

Refresh the table? What is marked stays marked where that is still possible.

%2</source>
        <translation>%1

Die Tabelle neu einlesen? Was vorgemerkt ist, bleibt vorgemerkt, soweit es noch möglich ist.

%2</translation>
    </message>
    <message>
        <source>Packages are being downloaded.</source>
        <translation>Pakete werden gerade heruntergeladen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln package(s) are marked and not applied.</source>
        <translation>
            <numerusform>Die Aktion für %Ln Paket ist noch nicht angewendet.</numerusform>
            <numerusform>Die Aktionen für %Ln Pakete sind noch nicht angewendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>VOK Quit</source>
        <translation>VOK beenden</translation>
    </message>
    <message>
        <source>&amp;Break Off and Quit</source>
        <translation>Abbrechen &amp;und beenden</translation>
    </message>
    <message>
        <source>&amp;Quit Without Applying</source>
        <translation>Beenden &amp;ohne Anwenden</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <translation>Geöffne&amp;t lassen</translation>
    </message>
    <message>
        <source>Waiting for another program</source>
        <translation>Es wird auf ein anderes Programm gewartet</translation>
    </message>
    <message>
        <source>Reading repositories and packages</source>
        <translation>Paketquellen und Pakete werden gelesen</translation>
    </message>
    <message>
        <source>Resolving dependencies</source>
        <translation>Abhängigkeiten werden aufgelöst</translation>
    </message>
    <message>
        <source>Downloading packages</source>
        <translation>Pakete werden heruntergeladen</translation>
    </message>
    <message>
        <source>Changing the installed packages</source>
        <translation>Die installierten Pakete werden verändert</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Es wird gesucht</translation>
    </message>
    <message>
        <source>Testing the repository</source>
        <translation>Die Paketquelle wird getestet</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Nothing is installed: the rpm database is empty. View Installable lists what can be installed.</source>
        <translation>Nichts ist installiert: Die rpm-Datenbank ist leer. „Installierbare“ listet auf, was installiert werden kann.</translation>
    </message>
    <message>
        <source>For looking only: packages cannot be changed.</source>
        <translation>Nur zum Ansehen: Pakete können nicht geändert werden.</translation>
    </message>
    <message>
        <source>Only your own cache in %1 was cleaned: the system&apos;s in %2 cannot be written.</source>
        <translation>Nur Ihr eigener Zwischenspeicher in %1 wurde geleert: In den des Systems in %2 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Repository %1 needs a user name and a password.</source>
        <translation>Die Paketquelle %1 verlangt Benutzernamen und Passwort.</translation>
    </message>
    <message>
        <source>Wrong user name or password for repository %1.</source>
        <translation>Falscher Benutzername oder falsches Passwort für die Paketquelle %1.</translation>
    </message>
    <message>
        <source>The repository is left out.</source>
        <translation>Die Paketquelle wird ausgelassen.</translation>
    </message>
    <message>
        <source>%1 replaces %2</source>
        <translation>%1 ersetzt %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln package(s) would replace installed ones of other names.</source>
        <translation>
            <numerusform>%Ln Paket würde installierte mit anderen Namen ersetzen.</numerusform>
            <numerusform>%Ln Pakete würden installierte mit anderen Namen ersetzen.</numerusform>
        </translation>
    </message>
    <message>
        <source>An upgrade by DNF would install them. They are no updates, so &quot;Set Update of Listed&quot; passes them over.</source>
        <translation>DNF würde sie bei einer Aktualisierung installieren. Sie sind keine Aktualisierungen, daher übergeht „Aufgeführte aktualisieren“ sie.</translation>
    </message>
    <message>
        <source>Mark for Installation</source>
        <translation>Zum Installieren vormerken</translation>
    </message>
    <message>
        <source>Not everything was cleaned. The log (Ctrl+L) tells what is left.</source>
        <translation>Es wurde nicht alles geleert. Das Protokoll (Strg+L) sagt, was übrig ist.</translation>
    </message>
    <message>
        <source>Not everything could be read. The log (Ctrl+L) tells what is missing.</source>
        <translation>Es konnte nicht alles eingelesen werden. Das Protokoll (Strg+L) sagt, was fehlt.</translation>
    </message>
    <message>
        <source>Left out for this session: %1.</source>
        <translation>In dieser Sitzung ausgelassen: %1.</translation>
    </message>
    <message>
        <source>The packages of these repositories are missing from the table:</source>
        <translation>Die Pakete dieser Paketquellen fehlen in der Tabelle:</translation>
    </message>
    <message>
        <source>Use Again</source>
        <translation>Wieder verwenden</translation>
    </message>
    <message>
        <source>Nothing is installed through rpm here. To work on another system: sudo VOKROOT=/mnt/image vok</source>
        <translation>Hier ist nichts über rpm installiert. Um an einem anderen System zu arbeiten: sudo VOKROOT=/mnt/image vok</translation>
    </message>
</context>
<context>
    <name>NextStep</name>
    <message>
        <source>The packages were not read, because that was cancelled.
Refresh reads them.</source>
        <translation>Die Pakete wurden nicht gelesen, weil das abgebrochen wurde.
„Neu einlesen“ liest sie.</translation>
    </message>
    <message>
        <source>No repositories are configured.
Edit Configuration in the Repositories menu (Ctrl+E) adds one.</source>
        <translation>Es sind keine Paketquellen eingerichtet.
„Konfiguration bearbeiten“ im Menü Paketquellen (Strg+E) fügt eine hinzu.</translation>
    </message>
    <message>
        <source>No repositories are enabled.
Edit Configuration in the Repositories menu (Ctrl+E) enables one: check Sess for this session, and Perm for later ones.</source>
        <translation>Es sind keine Paketquellen aktiviert.
„Konfiguration bearbeiten“ im Menü Paketquellen (Strg+E) aktiviert eine: durch ein Häkchen unter „Sitz.“ für diese Sitzung, und unter „Dauer“ für spätere.</translation>
    </message>
    <message>
        <source>The repositories could not be read.
Refresh tries again, for example when the network is there. To do without a repository, uncheck its Sess under Edit Configuration in the Repositories menu (Ctrl+E).</source>
        <translation>Die Paketquellen konnten nicht gelesen werden.
„Neu einlesen“ versucht es noch einmal, zum Beispiel wenn das Netz da ist. Soll es ohne eine Paketquelle gehen, ist ihr Häkchen unter „Sitz.“ zu entfernen: „Konfiguration bearbeiten“ im Menü Paketquellen (Strg+E).</translation>
    </message>
    <message>
        <source>The packages could not be read.
The log (Ctrl+L) tells why. Refresh tries again.</source>
        <translation>Die Pakete konnten nicht gelesen werden.
Das Protokoll (Strg+L) nennt den Grund. „Neu einlesen“ versucht es noch einmal.</translation>
    </message>
</context>
<context>
    <name>PackageTable::ActionContextMenu</name>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation>&amp;Keine Aktion</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Stops loading; the dialog stays open</source>
        <translation>Bricht das Laden ab; der Dialog bleibt offen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>What the update changes</source>
        <translation>Was die Aktualisierung ändert</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Dependencies</source>
        <translation>Abhängigkeiten</translation>
    </message>
    <message>
        <source>Change log</source>
        <translation>Änderungsprotokoll</translation>
    </message>
    <message>
        <source>What requires it</source>
        <translation>Wer es benötigt</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Aktualisierung</translation>
    </message>
    <message>
        <source>&amp;Members</source>
        <translation>&amp;Mitglieder</translation>
    </message>
    <message>
        <source>De&amp;tails</source>
        <translation>De&amp;tails</translation>
    </message>
    <message>
        <source>Dep&amp;endencies</source>
        <translation>Abhän&amp;gigkeiten</translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation>&amp;Dateien</translation>
    </message>
    <message>
        <source>Change &amp;Log</source>
        <translation>Ände&amp;rungen</translation>
    </message>
    <message>
        <source>&amp;Required By</source>
        <translation>Be&amp;nötigt von</translation>
    </message>
    <message>
        <source>Show the paths that hold this text</source>
        <translation>Die Pfade zeigen, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Text in the path</source>
        <translation>Text im Pfad</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Copy Paths</source>
        <translation>Pfade &amp;kopieren</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Mitglieder</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Kurzbeschreibung</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorige</translation>
    </message>
    <message>
        <source>Describe the row above this one (Alt+Up)</source>
        <translation>Die Zeile über dieser beschreiben (Alt+Auf)</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Näch&amp;ste</translation>
    </message>
    <message>
        <source>Describe the row below this one (Alt+Down)</source>
        <translation>Die Zeile unter dieser beschreiben (Alt+Ab)</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>&amp;Webseite öffnen</translation>
    </message>
    <message>
        <source>&amp;Browse Repository</source>
        <translation>Paket&amp;quelle öffnen</translation>
    </message>
    <message>
        <source>Show the files of the repository in the web browser</source>
        <translation>Die Dateien der Paketquelle im Webbrowser zeigen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Schli&amp;eßen</translation>
    </message>
    <message>
        <source>Other data are being loaded; this page follows.</source>
        <translation>Andere Daten werden geladen; diese Seite folgt.</translation>
    </message>
    <message>
        <source>Loading the file lists of the repositories...</source>
        <translation>Die Dateilisten der Paketquellen werden geladen ...</translation>
    </message>
    <message>
        <source>Loading the change logs of the repositories...</source>
        <translation>Die Änderungsprotokolle der Paketquellen werden geladen ...</translation>
    </message>
    <message>
        <source>VOK Yum Warning</source>
        <translation>VOK – Yum-Warnung</translation>
    </message>
    <message>
        <source>Another operation is running.</source>
        <translation>Ein anderer Vorgang läuft.</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Das Laden wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The file lists are not loaded.

%1</source>
        <translation>Die Dateilisten sind nicht geladen.

%1</translation>
    </message>
    <message>
        <source>The change logs are not loaded.

%1</source>
        <translation>Die Änderungsprotokolle sind nicht geladen.

%1</translation>
    </message>
    <message>
        <source>Description of %1</source>
        <translation>Beschreibung von %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Repository %1</source>
        <translation>Paketquelle %1</translation>
    </message>
    <message>
        <source>There is no description.</source>
        <translation>Es gibt keine Beschreibung.</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>%1 (installed)</source>
        <translation>%1 (installiert)</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Other versions:</source>
        <translation>Andere Versionen:</translation>
    </message>
    <message>
        <source>Repository:</source>
        <translation>Paketquelle:</translation>
    </message>
    <message>
        <source>Architecture:</source>
        <translation>Architektur:</translation>
    </message>
    <message>
        <source>%1 (%L2 bytes)</source>
        <translation>%1 (%L2 Bytes)</translation>
    </message>
    <message>
        <source>Installed size:</source>
        <translation>Installierte Größe:</translation>
    </message>
    <message>
        <source>Download size:</source>
        <translation>Downloadgröße:</translation>
    </message>
    <message>
        <source>Summary:</source>
        <translation>Kurzbeschreibung:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>License:</source>
        <translation>Lizenz:</translation>
    </message>
    <message>
        <source>URL:</source>
        <translation>URL:</translation>
    </message>
    <message>
        <source>Vendor:</source>
        <translation>Anbieter:</translation>
    </message>
    <message>
        <source>Packager:</source>
        <translation>Paketbauer:</translation>
    </message>
    <message>
        <source>Build time:</source>
        <translation>Erstellt am:</translation>
    </message>
    <message>
        <source>Build host:</source>
        <translation>Erstellt auf:</translation>
    </message>
    <message>
        <source>Install time:</source>
        <translation>Installiert am:</translation>
    </message>
    <message>
        <source>Package file:</source>
        <translation>Paketdatei:</translation>
    </message>
    <message>
        <source>Source package:</source>
        <translation>Quellpaket:</translation>
    </message>
    <message>
        <source>Relocations:</source>
        <translation>Verschiebbare Pfade:</translation>
    </message>
    <message>
        <source>Provides:</source>
        <translation>Stellt bereit:</translation>
    </message>
    <message>
        <source>Requires:</source>
        <translation>Benötigt:</translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation>Unverträglich mit:</translation>
    </message>
    <message>
        <source>Obsoletes:</source>
        <translation>Ersetzt:</translation>
    </message>
    <message>
        <source>Replaces the installed:</source>
        <translation>Ersetzt die installierten:</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>Es gibt keine.</translation>
    </message>
    <message>
        <source>There is no change log.</source>
        <translation>Es gibt kein Änderungsprotokoll.</translation>
    </message>
    <message>
        <source>Nothing that is installed requires it.</source>
        <translation>Nichts Installiertes benötigt es.</translation>
    </message>
    <message>
        <source>%1 -&gt; %2</source>
        <translation>%1 -&gt; %2</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>Architecture: %1</source>
        <translation>Architektur: %1</translation>
    </message>
    <message>
        <source>Installed size: %1</source>
        <translation>Installierte Größe: %1</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <translation>Downloadgröße: %1</translation>
    </message>
    <message>
        <source>The change log has nothing new.</source>
        <translation>Das Änderungsprotokoll enthält nichts Neues.</translation>
    </message>
    <message>
        <source>Changes since the installed version:</source>
        <translation>Änderungen seit der installierten Version:</translation>
    </message>
    <message>
        <source>The repository keeps no older changes; there may have been others.</source>
        <translation>Ältere Änderungen hält die Paketquelle nicht vor; es kann weitere gegeben haben.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Mandatory packages</source>
        <translation>Zwingende Pakete</translation>
    </message>
    <message>
        <source>Default packages</source>
        <translation>Übliche Pakete</translation>
    </message>
    <message>
        <source>Optional packages</source>
        <translation>Optionale Pakete</translation>
    </message>
    <message>
        <source>Conditional packages</source>
        <translation>Bedingte Pakete</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln files</source>
        <translation>
            <numerusform>%L1 von %Ln Datei</numerusform>
            <numerusform>%L1 von %Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelling. The repository that is being read is read to its end first; that cannot be interrupted.</source>
        <translation>Wird abgebrochen. Die Paketquelle, die gerade gelesen wird, wird noch zu Ende gelesen; das kann nicht unterbrochen werden.</translation>
    </message>
    <message>
        <source>%1 (if %2 is installed)</source>
        <translation>%1 (wenn %2 installiert ist)</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Page</name>
    <message>
        <source>L&amp;oad</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>Why this page is empty</source>
        <translation>Warum diese Seite leer ist</translation>
    </message>
</context>
<context>
    <name>PackageTable::Model</name>
    <message>
        <source>Update package</source>
        <translation>Paket aktualisieren</translation>
    </message>
    <message>
        <source>Install package</source>
        <translation>Paket installieren</translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation>Paket entfernen</translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation>Das Paket ist verfügbar und aktualisiert eine veraltete Version</translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation>Das Paket ist zur Installation verfügbar</translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation>Das Paket ist installiert und aktuell</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Suite von Paketen</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Gruppe von Paketen</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Gewöhnliches Paket</translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation>Installiert: %1
</translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation>Verfügbar: %1
</translation>
    </message>
    <message>
        <source>No action</source>
        <translation>Keine Aktion</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Action to be performed on the package, if any: Update, Install, Remove</source>
        <translation>Was mit dem Paket geschehen soll: Aktualisieren, Installieren, Entfernen oder nichts</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation>Ob das Paket installiert ist, und wenn ja, ob es aktuell ist</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation>Ob es ein gewöhnliches Paket, eine Suite von Paketen oder eine Gruppe von Paketen ist</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Name des Pakets</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation>Version und Release des Pakets als Version-Release;
ist die Epoche nicht null, als Epoche:Version-Release</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Paketquelle</translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation>Paketquelle, die die neueste Version des Pakets bereithält</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation>Architektur, für die das Paket bestimmt ist, oder „noarch“ für allgemein verwendbare Pakete</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation>Größe des Pakets</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation>Datum und Uhrzeit der Erstellung des Pakets</translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Paketquelle öffnen</translation>
    </message>
</context>
<context>
    <name>PackageTable::Texts</name>
    <message>
        <source>View Updatable</source>
        <translation>Aktualisierbare</translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation>Installierbare</translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation>Entfernbare</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>No packages are listed.
&quot;%1&quot; hides most of them.</source>
        <translation>Es sind keine Pakete gelistet.
Die Einstellung „%1“ blendet die meisten aus.</translation>
    </message>
    <message>
        <source>No packages are listed.
Most of them are hidden because &quot;Include Duplicates&quot; is not checked.</source>
        <translation>Es sind keine Pakete gelistet.
Die meisten sind ausgeblendet, weil bei „Mit Duplikaten“ kein Häkchen steht.</translation>
    </message>
    <message>
        <source>No packages are listed.
Most of them are hidden because &quot;Include Groups&quot; is not checked.</source>
        <translation>Es sind keine Pakete gelistet.
Die meisten sind ausgeblendet, weil bei „Mit Gruppen“ kein Häkchen steht.</translation>
    </message>
    <message>
        <source>No packages are listed.
The regular expression &quot;%1&quot; hides most of them.</source>
        <translation>Es sind keine Pakete gelistet.
Der reguläre Ausdruck „%1“ blendet die meisten aus.</translation>
    </message>
    <message>
        <source>No packages are listed.
The search has not been run to its end.</source>
        <translation>Es sind keine Pakete gelistet.
Die Suche ist nicht zu Ende geführt.</translation>
    </message>
    <message>
        <source>There are no packages.</source>
        <translation>Es gibt keine Pakete.</translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Left and Right choose a column, Return sorts by it, Ctrl+Left and Ctrl+Right move it, Plus and Minus change its width. The menu key shows and hides columns.</source>
        <translation>Links und Rechts wählen eine Spalte, Eingabe sortiert nach ihr, Strg+Links und Strg+Rechts verschieben sie, Plus und Minus ändern ihre Breite. Die Menütaste blendet Spalten ein und aus.</translation>
    </message>
    <message>
        <source>Space changes the action of the current package.</source>
        <translation>Die Leertaste ändert die Aktion des aktuellen Pakets.</translation>
    </message>
    <message>
        <source>Show &amp;All Columns in Their Order</source>
        <translation>&amp;Alle Spalten in ihrer Reihenfolge zeigen</translation>
    </message>
</context>
<context>
    <name>Progress::Minion</name>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Retrying</source>
        <translation>Neuer Versuch</translation>
    </message>
    <message>
        <source>Not Started Yet</source>
        <translation>Noch nicht begonnen</translation>
    </message>
    <message>
        <source>In Progress</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>%1 / %2 (%3%%)</source>
        <translation>%1 / %2 (%3 %%)</translation>
    </message>
    <message numerus="yes">
        <source>%n downloads</source>
        <translation>
            <numerusform>%n Download</numerusform>
            <numerusform>%n Downloads</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Python</name>
    <message>
        <source>Internal error: pyExceptExpect called with NULL
</source>
        <translation>Interner Fehler: pyExceptExpect mit NULL aufgerufen
</translation>
    </message>
    <message>
        <source>Internal error: python exception occurred, but exception information was empty.</source>
        <translation>Interner Fehler: Es gab eine Python-Ausnahme, aber ohne Angaben dazu.</translation>
    </message>
    <message>
        <source>Internal error: python exception occurred from C code.
When reporting this issue, please include the contents of the
Log window, which should contain a walkback.</source>
        <translation>Interner Fehler: Python-Ausnahme aus C-Code.
Bitte geben Sie, wenn Sie dies melden, den Inhalt des
Protokollfensters mit an; dort sollte die Aufrufkette stehen.</translation>
    </message>
    <message>
        <source>Internal error: cannot start the python interpreter
</source>
        <translation>Interner Fehler: Der Python-Interpreter lässt sich nicht starten
</translation>
    </message>
    <message>
        <source>Internal error: cannot find python __main__ module
</source>
        <translation>Interner Fehler: Python-Modul __main__ nicht gefunden
</translation>
    </message>
    <message>
        <source>Internal error: cannot find python __main__ dict
</source>
        <translation>Interner Fehler: Verzeichnis des Python-Moduls __main__ nicht gefunden
</translation>
    </message>
    <message>
        <source>Internal error: python statement too long
</source>
        <translation>Interner Fehler: Python-Anweisung zu lang
</translation>
    </message>
    <message>
        <source>Internal error: python expression too long
</source>
        <translation>Interner Fehler: Python-Ausdruck zu lang
</translation>
    </message>
    <message>
        <source>Internal error: pyString passed NULL python object
</source>
        <translation>Interner Fehler: pyString bekam ein Python-Objekt NULL
</translation>
    </message>
    <message>
        <source>Internal error: %s not found
</source>
        <translation>Interner Fehler: %s nicht gefunden
</translation>
    </message>
    <message>
        <source>Internal error: %s not callable
</source>
        <translation>Interner Fehler: %s ist nicht aufrufbar
</translation>
    </message>
    <message>
        <source>Internal error: method %s call attemped with NULL self
</source>
        <translation>Interner Fehler: Methode %s sollte ohne Objekt (NULL) aufgerufen werden
</translation>
    </message>
    <message>
        <source>Internal error: method %s not found
</source>
        <translation>Interner Fehler: Methode %s nicht gefunden
</translation>
    </message>
    <message>
        <source>Internal error: method %s not callable
</source>
        <translation>Interner Fehler: Methode %s ist nicht aufrufbar
</translation>
    </message>
    <message>
        <source>Internal error: module %s lacks dictionary
</source>
        <translation>Interner Fehler: Modul %s hat kein Wörterbuch
</translation>
    </message>
    <message>
        <source>Internal error: cannot assign %s.%s
</source>
        <translation>Interner Fehler: %s.%s kann nicht zugewiesen werden
</translation>
    </message>
</context>
<context>
    <name>RepoAuth::Checker</name>
    <message>
        <source>The password will be written to %1.</source>
        <translation>Das Passwort wird in %1 geschrieben.</translation>
    </message>
    <message>
        <source>An answer for several repositories may write it to: %1.</source>
        <translation>Eine Antwort für mehrere Paketquellen kann es auch schreiben in: %1.</translation>
    </message>
    <message>
        <source>A file that gets its first password can no longer be read by other users.</source>
        <translation>Eine Datei, die ihr erstes Passwort bekommt, können andere Benutzer nicht mehr lesen.</translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VOK Authentication</source>
        <translation>VOK – Anmeldung</translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation>Einige eingerichtete Paketquellen verlangen eine Anmeldung</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URLs</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL der Spiegelliste</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the kivvet authentication method</source>
        <translation>Anmeldename für eine Paketquelle mit dem Anmeldeverfahren kivvet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the kivvet authentication method</source>
        <translation>Passwort für eine Paketquelle mit dem Anmeldeverfahren kivvet</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation>Für diese Sitzung abschalten</translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation>Alle überspringen</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Für alle übernehmen</translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation>Für alle dieses Servers übernehmen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>RepoBrowse</name>
    <message>
        <source>The address holds a password, which is left out, because other users could read it:
%1</source>
        <translation>Die Adresse enthält ein Passwort, das weggelassen wird, weil andere Benutzer es lesen könnten:
%1</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Paketquelle öffnen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation>Die Paketquelle ist ohne URL eingerichtet</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Config</name>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Eindeutige Kennung der Paketquelle</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Beschreibung der Paketquelle</translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation>Liste der URLs der Paketquelle.
Wenn es mehrere sind, sollten sie alle denselben Inhalt spiegeln;
sie ersetzen einander, wenn einige nicht erreichbar sind.</translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation>URL einer Datei mit einer Liste von URLs der Paketquelle.</translation>
    </message>
    <message>
        <source>&amp;Identifier</source>
        <translation>&amp;Kennung</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;URLs</source>
        <translation>&amp;URLs</translation>
    </message>
    <message>
        <source>&amp;Mirror list URL</source>
        <translation>URL der &amp;Spiegelliste</translation>
    </message>
    <message>
        <source>&amp;Kivvet Authentication</source>
        <translation>Kivvet-An&amp;meldung</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the kivvet authentication method</source>
        <translation>Anmeldename für eine Paketquelle mit dem Anmeldeverfahren kivvet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the kivvet authentication method</source>
        <translation>Passwort für eine Paketquelle mit dem Anmeldeverfahren kivvet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation>Optionen der Paketquelle</translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation>Alle weiteren yum-Optionen dieser Paketquelle. Siehe yum.conf(5)</translation>
    </message>
    <message>
        <source>Ot&amp;her Options:</source>
        <translation>&amp;Weitere Optionen:</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation>Ob die Paketquelle benutzt werden darf</translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation>Ob die GPG-Signaturen der Pakete aus dieser Paketquelle auf Echtheit geprüft werden</translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation>&amp;Aktiviert</translation>
    </message>
    <message>
        <source>Check &amp;GPG Keys</source>
        <translation>GPG-Schlüssel &amp;prüfen</translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation>Konfigurationsdatei (für Fortgeschrittene)</translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation>Name der yum-Konfigurationsdatei, in der diese Paketquelle stehen soll.
Ohne Angabe die Kennung der Paketquelle</translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation>Eine Zahl, nach der sich die Reihenfolge dieser Paketquelle
in einer Konfigurationsdatei mit mehreren Paketquellen richtet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Sort &amp;Position</source>
        <translation>Sortierpos&amp;ition</translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation>(Ja)</translation>
    </message>
    <message>
        <source>(No)</source>
        <translation>(Nein)</translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation>Keine Kennung angegeben</translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation>Keine URLs und keine URL der Spiegelliste angegeben</translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation>Die Datei liegt in keinem Verzeichnis aus reposdir</translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation>Der Datei fehlt die Endung .repo</translation>
    </message>
    <message>
        <source>No Kivvet Authentication Name specified</source>
        <translation>Kein Kivvet-Anmeldename angegeben</translation>
    </message>
    <message>
        <source>No Kivvet Authentication Password specified</source>
        <translation>Kein Kivvet-Passwort angegeben</translation>
    </message>
    <message>
        <source>With the variables replaced:</source>
        <translation>Mit ersetzten Variablen:</translation>
    </message>
    <message>
        <source>The password consists of mask characters only</source>
        <translation>Das Passwort besteht nur aus Maskierungszeichen</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VOK Repository Configuration</source>
        <translation>VOK – Paketquelle</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation>Die Änderungen an dieser Paketquelle zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation>Die Änderungen an dieser Paketquelle zurücknehmen und das Fenster schließen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Die Änderungen an allen Paketquellen anwenden und das Fenster schließen</translation>
    </message>
    <message>
        <source>Other users can read %1 now.  They cannot any more once it holds this password.</source>
        <translation>Andere Benutzer können %1 jetzt lesen. Sobald die Datei dieses Passwort enthält, können sie es nicht mehr.</translation>
    </message>
    <message>
        <source>Discard the changes to this repository configuration?</source>
        <translation>Die Änderungen an dieser Paketquelle verwerfen?</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Ve&amp;rwerfen</translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation>Weiter bearbei&amp;ten</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Browse Repository</source>
        <translation>Im Bro&amp;wser öffnen</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VOK Repository Configuration Editor</source>
        <translation>VOK – Paketquellen einrichten</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Identifier, name or URL</source>
        <translation>Kennung, Name oder URL</translation>
    </message>
    <message>
        <source>Shows only the repositories whose identifier, name or URLs contain this text</source>
        <translation>Zeigt nur die Paketquellen, deren Kennung, Name oder URLs diesen Text enthalten</translation>
    </message>
    <message>
        <source>&amp;Browse Repository</source>
        <translation>Im Bro&amp;wser öffnen</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>Die erste URL der gewählten Paketquelle in einem Webbrowser öffnen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation>Die gewählte Paketquelle bearbeiten</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation>Eine neue Paketquelle von Grund auf einrichten</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation>Eine neue Paketquelle nach dem Vorbild der gewählten einrichten</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation>Die gewählte Paketquelle entfernen</translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation>Änderungen noch nicht angewendet</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Show what Apply would change in which file</source>
        <translation>Zeigen, was „Anwenden“ in welcher Datei ändern würde</translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation>Alles &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation>Alle Änderungen an Paketquellen seit dem letzten Anwenden oder dem Öffnen des Dialogs zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation>Alle Änderungen an Paketquellen seit dem letzten Anwenden oder dem Öffnen des Dialogs zurücknehmen und das Fenster schließen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation>Die Änderungen an allen Paketquellen anwenden, das Fenster aber nicht schließen</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Die Änderungen an allen Paketquellen anwenden und das Fenster schließen</translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation>Eine Paketquelle hat keine Kennung</translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation>Zwei oder mehr Paketquellen haben die Kennung %1</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n removed</source>
        <translation>
            <numerusform>%1: %n entfernt</numerusform>
            <numerusform>%1: %n entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>Discard the changes to the repository configurations?</source>
        <translation>Die Änderungen an den Paketquellen verwerfen?</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Ve&amp;rwerfen</translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation>Weiter bearbei&amp;ten</translation>
    </message>
    <message>
        <source>There are no repositories.
Add makes the first one.</source>
        <translation>Es gibt keine Paketquellen.
„Hinzufügen“ richtet die erste ein.</translation>
    </message>
    <message>
        <source>No repository has &quot;%1&quot; in its identifier, name or URLs.</source>
        <translation>Keine Paketquelle hat „%1“ in Kennung, Name oder URLs.</translation>
    </message>
    <message>
        <source>Discard the changes to which repositories this session uses?</source>
        <translation>Änderungen an den in dieser Sitzung verwendeten Paketquellen verwerfen?</translation>
    </message>
    <message>
        <source>Apply the changes to this session, but do not close the window</source>
        <translation>Änderungen an dieser Sitzung anwenden, das Fenster aber nicht schließen</translation>
    </message>
    <message>
        <source>Apply the changes to this session, and close the window</source>
        <translation>Änderungen an dieser Sitzung anwenden und das Fenster schließen</translation>
    </message>
    <message>
        <source>Unapplied Session Changes</source>
        <translation>Änderungen der Sitzung noch nicht angewendet</translation>
    </message>
    <message>
        <source>Read-only: the configuration cannot be changed</source>
        <translation>Nur Lesezugriff: Die Konfiguration kann nicht geändert werden</translation>
    </message>
    <message>
        <source>Some files cannot be read, so nothing can be written</source>
        <translation>Einige Dateien sind nicht lesbar, daher kann nichts geschrieben werden</translation>
    </message>
    <message>
        <source>Nothing can be written, because these files cannot be read:
%1</source>
        <translation>Es kann nichts geschrieben werden, weil diese Dateien nicht lesbar sind:
%1</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>(new)</source>
        <translation>(neu)</translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation>Die Paketquelle ist für diese Sitzung aktiviert</translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation>Die Paketquelle ist für diese Sitzung nicht aktiviert</translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation>Die Paketquelle ist dauerhaft aktiviert</translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation>Die Paketquelle ist nicht dauerhaft aktiviert</translation>
    </message>
    <message>
        <source>Sess</source>
        <translation>Sitz.</translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation>Ob die Paketquelle in dieser Sitzung benutzt wird.
Dies geht der dauerhaften Einstellung „Aktiviert“ vor.</translation>
    </message>
    <message>
        <source>Perm</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation>Ob die Paketquelle von Haus aus aktiviert ist.
Für eine einzelne Sitzung kann das anders festgelegt werden.</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Eindeutige Kennung der Paketquelle</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Beschreibung der Paketquelle</translation>
    </message>
</context>
<context>
    <name>RepoEditor::PreviewDialog</name>
    <message>
        <source>VOK Repository Configuration Changes</source>
        <translation>VOK – Änderungen an den Paketquellen</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Nothing can be written:</source>
        <translation>Es kann nichts geschrieben werden:</translation>
    </message>
    <message>
        <source>No file would be another one.</source>
        <translation>Keine Datei würde anders.</translation>
    </message>
    <message>
        <source>%1 is removed</source>
        <translation>%1 wird entfernt</translation>
    </message>
    <message>
        <source>%1 is changed</source>
        <translation>%1 wird geändert</translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation>%1 ist neu</translation>
    </message>
    <message>
        <source>%1  (another password)</source>
        <translation>%1  (ein anderes Passwort)</translation>
    </message>
    <message>
        <source>Its present content is kept in %1.</source>
        <translation>Der jetzige Inhalt bleibt in %1 erhalten.</translation>
    </message>
</context>
<context>
    <name>RepoEditor::SortFilterProxyModel</name>
    <message>
        <source>Used in this session</source>
        <translation>In dieser Sitzung benutzt</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
</context>
<context>
    <name>RepoEditor::TestRow</name>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>Try to reach the repository as it is described here.  Nothing is saved</source>
        <translation>Versuchen, die hier beschriebene Paketquelle zu erreichen. Gespeichert wird nichts</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Ergebnis des Tests</translation>
    </message>
    <message>
        <source>C&amp;ancel Test</source>
        <translation>Test abbr&amp;echen</translation>
    </message>
    <message>
        <source>Stops the test; the dialog stays open</source>
        <translation>Bricht den Test ab; der Dialog bleibt offen</translation>
    </message>
    <message>
        <source>Another operation is running.</source>
        <translation>Ein anderer Vorgang läuft.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>Der Test wurde abgebrochen.</translation>
    </message>
    <message>
        <source>This is of the repository before the last changes.</source>
        <translation>Dies gilt für die Paketquelle vor den letzten Änderungen.</translation>
    </message>
    <message>
        <source>There is no URL to test.</source>
        <translation>Es gibt keine URL zu testen.</translation>
    </message>
    <message>
        <source>The repository can be reached.</source>
        <translation>Die Paketquelle ist erreichbar.</translation>
    </message>
    <message>
        <source>The repository cannot be reached.</source>
        <translation>Die Paketquelle ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>%1 has repository metadata.</source>
        <translation>%1 hat Metadaten einer Paketquelle.</translation>
    </message>
    <message>
        <source>%1 refuses the user name or the password.</source>
        <translation>%1 weist den Benutzernamen oder das Passwort zurück.</translation>
    </message>
    <message>
        <source>%1 wants a user name and a password, or lets nobody in.</source>
        <translation>%1 verlangt Benutzername und Passwort oder lässt niemanden ein.</translation>
    </message>
    <message>
        <source>The host of %1 is unknown.</source>
        <translation>Der Server von %1 ist unbekannt.</translation>
    </message>
    <message>
        <source>The host of %1 refuses the connection.</source>
        <translation>Der Server von %1 lehnt die Verbindung ab.</translation>
    </message>
    <message>
        <source>%1 does not answer in time.</source>
        <translation>%1 antwortet nicht rechtzeitig.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not accepted.</source>
        <translation>Das Zertifikat von %1 wird nicht anerkannt.</translation>
    </message>
    <message>
        <source>%1 has no repodata/repomd.xml.</source>
        <translation>%1 hat kein repodata/repomd.xml.</translation>
    </message>
    <message>
        <source>There is no list of mirrors at %1.</source>
        <translation>Unter %1 gibt es keine Spiegelliste.</translation>
    </message>
    <message>
        <source>The proxy on the way to %1 cannot be reached or used.</source>
        <translation>Der Proxy auf dem Weg zu %1 ist nicht erreichbar oder nicht benutzbar.</translation>
    </message>
    <message>
        <source>What %1 has as repodata/repomd.xml is no repository metadata.  DNF takes the first that it finds.</source>
        <translation>Was %1 als repodata/repomd.xml hat, sind keine Metadaten einer Paketquelle. DNF nimmt das Erste, das es findet.</translation>
    </message>
    <message>
        <source>The list of mirrors at %1 names none.</source>
        <translation>Die Spiegelliste unter %1 nennt keine Spiegel.</translation>
    </message>
    <message>
        <source>DNF does not take it as it is: %1</source>
        <translation>DNF nimmt es so nicht an: %1</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>DNF inserts the path of a file before the &quot;?&quot; of a URL.  It cannot use a server that expects that path in the query.</source>
        <translation>DNF fügt den Pfad einer Datei vor dem „?“ einer URL ein.  Ein Server, der diesen Pfad in der Abfrage erwartet, lässt sich nicht verwenden.</translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Left and Right choose a column, Return sorts by it, Ctrl+Left and Ctrl+Right move it, Plus and Minus change its width.</source>
        <translation>Links und Rechts wählen eine Spalte, Eingabe sortiert nach ihr, Strg+Links und Strg+Rechts verschieben sie, Plus und Minus ändern ihre Breite.</translation>
    </message>
    <message>
        <source>Repositories</source>
        <translation>Paketquellen</translation>
    </message>
    <message>
        <source>Space toggles the check mark of the current cell, Return edits the repository, Delete removes, Insert adds.</source>
        <translation>Die Leertaste setzt und löscht das Häkchen der aktuellen Zelle, Eingabe bearbeitet die Paketquelle, Entf entfernt sie, Einfg fügt eine hinzu.</translation>
    </message>
</context>
<context>
    <name>RepoFailureDialog</name>
    <message>
        <source>VOK Yum Error</source>
        <translation>VOK – Yum-Fehler</translation>
    </message>
    <message>
        <source>&amp;Leave Out for This Session</source>
        <translation>Für diese Sitzung aus&amp;lassen</translation>
    </message>
    <message>
        <source>Read the packages without these repositories until VOK ends</source>
        <translation>Die Pakete ohne diese Paketquellen lesen, bis VOK beendet wird</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>Erneut &amp;versuchen</translation>
    </message>
    <message>
        <source>&amp;Edit Repository</source>
        <translation>Paketquelle &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Close this message and open the form of the repository</source>
        <translation>Diese Meldung schließen und das Formular der Paketquelle öffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Repository:</source>
        <translation>&amp;Paketquelle:</translation>
    </message>
</context>
<context>
    <name>SaveRow</name>
    <message>
        <source>This text is too long to be shown whole.</source>
        <translation>Dieser Text ist zu lang, um ganz angezeigt zu werden.</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>S&amp;peichern ...</translation>
    </message>
    <message>
        <source>Save the whole text to a file</source>
        <translation>Den ganzen Text in einer Datei speichern</translation>
    </message>
    <message>
        <source>Save Text</source>
        <translation>Text speichern</translation>
    </message>
    <message>
        <source>VOK Error</source>
        <translation>VOK-Fehler</translation>
    </message>
    <message>
        <source>Unable to save the text to %1:
%2</source>
        <translation>Der Text kann nicht in %1 gespeichert werden:
%2</translation>
    </message>
</context>
<context>
    <name>ScrollableDialog</name>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>Share</name>
    <message>
        <source>%1 belongs to %2. As root, VOK loads its scripts only from where nobody but root, or the owner of the program, can change them. Change the owner, or unset VOKSHARE.</source>
        <translation>%1 gehört %2. Als root lädt VOK seine Skripte nur von dort, wo sie niemand außer root oder dem Eigentümer des Programms ändern kann. Ändern Sie den Eigentümer oder löschen Sie die Variable VOKSHARE.</translation>
    </message>
    <message>
        <source>%1, which belongs to %2, can be changed by other users. As root, VOK loads its scripts only from where nobody but root, or the owner of the program, can change them. Take the right to write from the others (chmod go-w), or unset VOKSHARE.</source>
        <translation>%1, das %2 gehört, kann von anderen Benutzern geändert werden. Als root lädt VOK seine Skripte nur von dort, wo sie niemand außer root oder dem Eigentümer des Programms ändern kann. Nehmen Sie den anderen das Schreibrecht (chmod go-w) oder löschen Sie die Variable VOKSHARE.</translation>
    </message>
</context>
<context>
    <name>StuckScriptlet</name>
    <message>
        <source>A scriptlet of the package %1 has been running for a long time, and rpm waits for it.

Process %2: %3

VOK can send SIGTERM to this process, and to no other. rpm then reports that the scriptlet failed, and what the scriptlet was to do may be done in part; if it runs before the installation or removal, the package is not installed or removed. Other processes that the scriptlet started are not ended.

If it may still be working, keep waiting.</source>
        <translation>Ein Paketskript des Pakets %1 läuft seit längerer Zeit, und rpm wartet darauf.

Prozess %2: %3

VOK kann diesem Prozess, und keinem anderen, SIGTERM senden. rpm meldet dann, dass das Paketskript fehlgeschlagen ist, und dessen Arbeit ist möglicherweise nur zum Teil getan; läuft es vor dem Installieren oder Entfernen, so wird das Paket nicht installiert oder entfernt. Andere Prozesse, die das Paketskript gestartet hat, werden nicht beendet.

Warten Sie weiter, wenn es noch arbeiten könnte.</translation>
    </message>
    <message>
        <source>VOK Scriptlet</source>
        <translation>VOK – Paketskript</translation>
    </message>
    <message>
        <source>&amp;Keep Waiting</source>
        <translation>&amp;Weiter warten</translation>
    </message>
    <message>
        <source>&amp;End the Scriptlet</source>
        <translation>Paketskript &amp;beenden</translation>
    </message>
    <message>
        <source>Sent SIGTERM to process %1</source>
        <translation>SIGTERM an Prozess %1 gesendet</translation>
    </message>
    <message>
        <source>Process %1 cannot be ended: errno = %2 (%3)</source>
        <translation>Prozess %1 kann nicht beendet werden: errno = %2 (%3)</translation>
    </message>
</context>
<context>
    <name>WebBrowser</name>
    <message>
        <source>Browse</source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message>
        <source>The address cannot be opened:
%1

%2</source>
        <translation>Die Adresse lässt sich nicht öffnen:
%1

%2</translation>
    </message>
</context>
<context>
    <name>WriteProgress</name>
    <message>
        <source>Writing the repository files...</source>
        <translation>Die Dateien der Paketquellen werden geschrieben...</translation>
    </message>
    <message>
        <source>VOK Repository Configuration Editor</source>
        <translation>VOK – Paketquellen einrichten</translation>
    </message>
</context>
<context>
    <name>YumConfIO</name>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation>Eine Paketquelle hat keine Kennung. Sie wird entfernt.</translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation>Zwei oder mehr Paketquellen haben dieselbe Kennung (%1). Für jede Kennung wird nur eine Paketquelle angewendet.</translation>
    </message>
    <message>
        <source>&quot;main&quot; names the section of the main options, never a repository.</source>
        <translation>„main“ heißt der Abschnitt der Hauptoptionen, niemals eine Paketquelle.</translation>
    </message>
    <message>
        <source>%1: what it would hold cannot be told apart from other sections.</source>
        <translation>%1: Was sie enthielte, ließe sich von anderen Abschnitten nicht unterscheiden.</translation>
    </message>
    <message>
        <source>%1, in %2: %3</source>
        <translation>%1, in %2: %3</translation>
    </message>
    <message>
        <source>the identifier holds a line break.</source>
        <translation>die Kennung enthält einen Zeilenumbruch.</translation>
    </message>
    <message>
        <source>the name holds a line break.</source>
        <translation>der Name enthält einen Zeilenumbruch.</translation>
    </message>
    <message>
        <source>the mirror list URL holds a line break.</source>
        <translation>die URL der Spiegelliste enthält einen Zeilenumbruch.</translation>
    </message>
    <message>
        <source>the other options begin with a blank, so that &quot;%1&quot; would continue the line above.</source>
        <translation>die weiteren Optionen beginnen mit einem Leerzeichen, sodass „%1“ die Zeile darüber fortsetzen würde.</translation>
    </message>
    <message>
        <source>in the other options, &quot;%1&quot; would be the head of a section.</source>
        <translation>in den weiteren Optionen wäre „%1“ der Kopf eines Abschnitts.</translation>
    </message>
    <message>
        <source>in the other options, &quot;%1&quot; sets an option that has a field of its own.</source>
        <translation>in den weiteren Optionen setzt „%1“ eine Option, die ein eigenes Feld hat.</translation>
    </message>
    <message>
        <source>it holds characters that cannot be written.</source>
        <translation>sie enthält Zeichen, die sich nicht schreiben lassen.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>DNF takes an indented line for the head of a section: %1</source>
        <translation>DNF hält eine eingerückte Zeile für den Kopf eines Abschnitts: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>These identifiers differ in case only: %1.</source>
        <translation>Diese Kennungen unterscheiden sich nur in Groß- und Kleinschreibung: %1.</translation>
    </message>
    <message>
        <source>These files are not as they were read; another program changed them, or they could not be read:

%1

What was changed there is lost when they are written or removed.</source>
        <translation>Diese Dateien sind nicht mehr so, wie sie gelesen wurden; ein anderes Programm hat sie geändert, oder sie waren nicht lesbar:

%1

Was dort geändert wurde, geht verloren, wenn sie geschrieben oder entfernt werden.</translation>
    </message>
    <message>
        <source>%1; errno = %2 (%3).</source>
        <translation>%1; errno = %2 (%3).</translation>
    </message>
    <message>
        <source>VOK Repository Editor Error</source>
        <translation>VOK – Fehler bei den Paketquellen</translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation>Die yum-Konfigurationsdatei %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation>Die Konfigurationsdatei %1 einer Paketquelle lässt sich nicht abfragen</translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation>Die Konfigurationsdatei %1 einer Paketquelle ist nicht lesbar</translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation>Fehlerhafter Abschnittsname in der Zeile: %1</translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation>Fehler beim Lesen der Konfigurationsdatei %1 einer Paketquelle</translation>
    </message>
    <message>
        <source>%1 gets its first password, and other users of this computer can no longer read it.</source>
        <translation>%1 bekommt ihr erstes Passwort; andere Benutzer dieses Rechners können die Datei dann nicht mehr lesen.</translation>
    </message>
    <message>
        <source>Nothing is written, because what these files hold is not known:
%1
</source>
        <translation>Es wird nichts geschrieben, weil nicht bekannt ist, was diese Dateien enthalten:
%1
</translation>
    </message>
    <message>
        <source>Nothing is written, because it would not be read as it is meant:

%1</source>
        <translation>Es wird nichts geschrieben, weil es nicht so gelesen würde, wie es gemeint ist:

%1</translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation>  Fortfahren?</translation>
    </message>
    <message>
        <source>Written before that:</source>
        <translation>Zuvor geschrieben:</translation>
    </message>
    <message>
        <source>Not written, and still to be applied:</source>
        <translation>Nicht geschrieben und noch anzuwenden:</translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation>Die Konfigurationsdatei %1 einer Paketquelle lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation>Die Konfigurationsdatei %1 einer Paketquelle lässt sich nicht entfernen</translation>
    </message>
    <message>
        <source>Everything was written, but these files are not removed, and what they hold is still configured:</source>
        <translation>Alles wurde geschrieben, doch diese Dateien sind nicht entfernt, und was sie enthalten, gilt weiterhin:</translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation>Paketquellen einrichten</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>It stands in the file %1. The repositories can be edited here when it has been corrected.</source>
        <translation>Sie steht in der Datei %1. Die Paketquellen können hier bearbeitet werden, wenn sie berichtigt ist.</translation>
    </message>
    <message>
        <source>%1, in %2: the password consists of mask characters only.</source>
        <translation>%1, in %2: Das Passwort besteht nur aus Maskierungszeichen.</translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Applying</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation>Abhängigkeiten werden geprüft: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Vorbereitung</translation>
    </message>
    <message>
        <source>apply changes</source>
        <translation>Anwenden der Änderungen</translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation>Paket %1 lässt sich nicht in die Liste der Installationen aufnehmen</translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation>Paket %1 lässt sich nicht in die Liste der Entfernungen aufnehmen</translation>
    </message>
    <message>
        <source>Internal error: Unable to find installed version for package update %1</source>
        <translation>Interner Fehler: Zur Aktualisierung des Pakets %1 ist keine installierte Version zu finden</translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation>Das neue Paket lässt sich nicht in das Paar für das aktualisierte Paket %1 aufnehmen</translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation>Das alte Paket lässt sich nicht in das Paar für das aktualisierte Paket %1 aufnehmen</translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation>Paket %1 lässt sich nicht in die Liste der Aktualisierungen aufnehmen</translation>
    </message>
    <message>
        <source>Unable to add group %1 to groups list</source>
        <translation>Gruppe %1 lässt sich nicht in die Liste der Gruppen aufnehmen</translation>
    </message>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation>Die Pipe für die Ausgabe der rpm-Transaktion lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation>dup2 für die Pipe der Ausgabe der rpm-Transaktion ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation>dup2 zum Wiederherstellen von stderr ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation>Paketköpfe werden gelöscht</translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation>Pakete werden gelöscht</translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation>XML-Metadaten werden gelöscht</translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation>Pickle-Daten werden gelöscht</translation>
    </message>
    <message>
        <source>Cleaning Sqlite Cache</source>
        <translation>SQLite-Daten werden gelöscht</translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation>Alles wird gelöscht</translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation>Initialisierung</translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation>Initialisierung: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation>Die yum-Sperre ist nicht zu bekommen</translation>
    </message>
    <message>
        <source>Internal error: yumIO.repos.repos not evaluable</source>
        <translation>Interner Fehler: yumIO.repos.repos nicht auswertbar</translation>
    </message>
    <message>
        <source>Internal error: yumIO.repos.repos not a dictionary</source>
        <translation>Interner Fehler: yumIO.repos.repos ist kein Dictionary</translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>Es sind keine Paketquellen eingerichtet.
Im Menü „Paketquellen“ lassen sich unter „Konfiguration bearbeiten“ Paketquellen einrichten.</translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>Es sind keine Paketquellen aktiviert.
Im Menü „Paketquellen“ lassen sich unter „Konfiguration bearbeiten“ Paketquellen einrichten.</translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation>Paketquellen werden gelesen</translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation>Die Initialisierung ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation>Einrichten der Paketquelle %1 nicht möglich:
%2</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation>Interner Fehler: Ausführung von yumIO.%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation>Aktualisierbare Pakete werden ermittelt</translation>
    </message>
    <message>
        <source>setup transaction</source>
        <translation>Einrichten der Transaktion</translation>
    </message>
    <message>
        <source>collect updatable packages</source>
        <translation>Ermitteln der aktualisierbaren Pakete</translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation>Installierte und verfügbare Pakete werden ermittelt</translation>
    </message>
    <message>
        <source>collect installed and available packages</source>
        <translation>Ermitteln der installierten und verfügbaren Pakete</translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation>Interner Fehler: yumIO.collectAll.%1 nicht gefunden</translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation>Gruppen werden ermittelt</translation>
    </message>
    <message>
        <source>collect groups</source>
        <translation>Ermitteln der Gruppen</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.setupTsGroup failed</source>
        <translation>Interner Fehler: Ausführung von yumIO.setupTsGroup fehlgeschlagen</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.collectGroupInfo failed</source>
        <translation>Interner Fehler: Ausführung von yumIO.collectGroupInfo fehlgeschlagen</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.visible_groups not evaluable</source>
        <translation>Interner Fehler: groupInfo.visible_groups nicht auswertbar</translation>
    </message>
    <message>
        <source>Internal error: group without name</source>
        <translation>Interner Fehler: Gruppe ohne Namen</translation>
    </message>
    <message>
        <source>Internal error: cannot find group&apos;s installed flag</source>
        <translation>Interner Fehler: Installationskennzeichen der Gruppe nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: cannot find groupInfo.group_installed[&apos;%s&apos;]</source>
        <translation>Interner Fehler: groupInfo.group_installed[&apos;%s&apos;] nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: YumIO::pyString called with NULL</source>
        <translation>Interner Fehler: YumIO::pyString mit NULL aufgerufen</translation>
    </message>
    <message>
        <source>Internal error: YumIO::pyString did not understand type</source>
        <translation>Interner Fehler: YumIO::pyString hat den Typ nicht verstanden</translation>
    </message>
    <message>
        <source>Internal error: YumIO::pyStringX did not understand type</source>
        <translation>Interner Fehler: YumIO::pyStringX hat den Typ nicht verstanden</translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation>Interner Fehler: Zeitangabe nicht verstanden: %1</translation>
    </message>
    <message>
        <source>Internal error: time not understood</source>
        <translation>Interner Fehler: Zeitangabe nicht verstanden</translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation>Interner Fehler: Paketgröße nicht verstanden: %1</translation>
    </message>
    <message>
        <source>Internal error: package size not understood</source>
        <translation>Interner Fehler: Paketgröße nicht verstanden</translation>
    </message>
    <message>
        <source>Internal error: package size result not understood</source>
        <translation>Interner Fehler: Ergebnis zur Paketgröße nicht verstanden</translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation>Aktualisierung verfügbar</translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation>Zur Installation verfügbar</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Suite von Paketen</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Gruppe von Paketen</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Gewöhnliches Paket</translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation>Interner Fehler: rpm.%1 nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation>Interner Fehler: prco.%1 des Pakets nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s files</source>
        <translation>Interner Fehler: Dateien des Pakets nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s changelog</source>
        <translation>Interner Fehler: Änderungsprotokoll des Pakets nicht gefunden</translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation>Dateilisten werden geladen</translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation>Laden der Dateilisten: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>collect filelists</source>
        <translation>Laden der Dateilisten</translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation>Weitere Daten werden geladen</translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation>Laden weiterer Daten: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>collect miscellaneous data</source>
        <translation>Laden weiterer Daten</translation>
    </message>
    <message>
        <source>Internal error: unexpected progress name</source>
        <translation>Interner Fehler: unerwartete Bezeichnung des Fortschritts</translation>
    </message>
    <message>
        <source>Reading installed packages</source>
        <translation>Installierte Pakete werden gelesen</translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation>Paketquelle %1 wird gelesen</translation>
    </message>
    <message>
        <source>mirror list</source>
        <translation>Spiegelliste</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation>Paketquelle %1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation>%1 für Paketquelle %2 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Internal error: collect grab size not understood</source>
        <translation>Interner Fehler: Größe eines Downloads beim Einlesen nicht verstanden</translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation>Paketkopf von %1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Internal error: unexpected progress filename</source>
        <translation>Interner Fehler: unerwarteter Dateiname eines Downloads</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Internal error: apply grab size not understood</source>
        <translation>Interner Fehler: Größe eines Downloads beim Anwenden nicht verstanden</translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation>RPM-Pakete werden aus Deltas zusammengesetzt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation>Vorbereitung der Transaktion</translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation>Vorbereitung des Transaktionstests</translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation>Transaktionstest</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback UNINST of %1 not expected</source>
        <translation>Interner Fehler: YumIO::tsCallback UNINST von %1 nicht erwartet</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback UNINST of %1 too many times</source>
        <translation>Interner Fehler: YumIO::tsCallback UNINST von %1 zu oft</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation>Interner Fehler: YumIO::tsCallback what=%1 nicht verstanden; wird übergangen</translation>
    </message>
    <message>
        <source>Internal error: Unable to find package for install/update of %1.%2</source>
        <translation>Interner Fehler: Zur Installation oder Aktualisierung von %1.%2 ist kein Paket zu finden</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>%1 wird aktualisiert</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 wird installiert</translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation>Aktualisierung wird abgeschlossen: %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>%1 wird entfernt</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback REMOVE/COMPLETE of %1 not expected</source>
        <translation>Interner Fehler: YumIO::tsCallback REMOVE/COMPLETE von %1 nicht erwartet</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation>Interner Fehler: YumIO::tsEvent action=%1 nicht verstanden; wird übergangen</translation>
    </message>
    <message>
        <source>Internal error: Unable to find package for %1 of %2.%3</source>
        <translation>Interner Fehler: Für den Schritt „%1“ von %2.%3 ist kein Paket zu finden</translation>
    </message>
    <message>
        <source>update</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>install</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>VOK Yum Error</source>
        <translation>VOK – Yum-Fehler</translation>
    </message>
    <message>
        <source>VOK Yum Warning</source>
        <translation>VOK – Yum-Warnung</translation>
    </message>
    <message>
        <source>Unable to %1: I/O Error: %2

Emitting a walkback to the Log window.</source>
        <translation>%1 nicht möglich: E/A-Fehler: %2

Die Aufrufkette steht im Protokollfenster.</translation>
    </message>
    <message>
        <source>Unable to %1: KeyboardInterrupt

This usually means VOK was sent signal SIGINT, SIGTERM, or similar.

But urlgrabber also can raise this error for several situations where it is just guessing.
So, emitting a walkback to the Log window.</source>
        <translation>%1 nicht möglich: KeyboardInterrupt

Das bedeutet meist, dass VOK ein Signal wie SIGINT oder SIGTERM bekam.

Doch auch urlgrabber meldet diesen Fehler in mehreren Lagen, in denen es nur rät.
Daher steht die Aufrufkette im Protokollfenster.</translation>
    </message>
    <message>
        <source>Internal error: python assertion failed
When reporting this issue, please include the contents of the
Log window, which should contain a walkback.</source>
        <translation>Interner Fehler: Python-Annahme verletzt
Bitte geben Sie, wenn Sie dies melden, den Inhalt des
Protokollfensters mit an; dort sollte die Aufrufkette stehen.</translation>
    </message>
    <message>
        <source>Unable to %1: metadata unavailable from all repo mirrors:
%2</source>
        <translation>%1 nicht möglich: Metadaten von keinem Spiegel der Paketquelle zu bekommen:
%2</translation>
    </message>
    <message>
        <source>Unable to %1: a repository&apos;s sqlite database was locked unexpectedly
On some distributions, PackageKit has been known to cause this.</source>
        <translation>%1 nicht möglich: Die SQLite-Datenbank einer Paketquelle war unerwartet gesperrt
Mit manchen Distributionen liegt das bekanntlich an PackageKit.</translation>
    </message>
    <message>
        <source>Unable to %1</source>
        <translation>%1 nicht möglich</translation>
    </message>
    <message>
        <source>Unable to reap children; errno=%1 (%2)</source>
        <translation>Kindprozesse lassen sich nicht abwarten; errno=%1 (%2)</translation>
    </message>
    <message>
        <source>Reaped zombie child %1</source>
        <translation>Zombie-Kindprozess %1 abgeräumt</translation>
    </message>
    <message>
        <source>Unable to disable SIGCHLD signal handler; errno=%1 (%2)</source>
        <translation>Die Behandlung des Signals SIGCHLD lässt sich nicht abschalten; errno=%1 (%2)</translation>
    </message>
    <message>
        <source>Unable to restore SIGCHLD signal handler; errno=%1 (%2)</source>
        <translation>Die Behandlung des Signals SIGCHLD lässt sich nicht wiederherstellen; errno=%1 (%2)</translation>
    </message>
    <message>
        <source>Kb</source>
        <translation>Kb</translation>
    </message>
    <message>
        <source>Mb</source>
        <translation>Mb</translation>
    </message>
    <message>
        <source>Gb</source>
        <translation>Gb</translation>
    </message>
    <message>
        <source>Tb</source>
        <translation>Tb</translation>
    </message>
    <message>
        <source>Pb</source>
        <translation>Pb</translation>
    </message>
    <message>
        <source>Eb</source>
        <translation>Eb</translation>
    </message>
    <message>
        <source>b</source>
        <translation>b</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation>Interner Fehler: groupInfo.%1 nicht auswertbar</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation>Interner Fehler: groupInfo.%1[%2] nicht auswertbar</translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation>Interner Fehler: group %1.%2 nicht auswertbar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation>das Paket optional ist</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation>Das Paket %1 gehört zur Gruppe %2, die zum %3 vorgemerkt ist;
damit wäre das Paket zum %4 vorzumerken,
es ist aber selbst zum %5 vorgemerkt.
Wie möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation>Das Paket %1 gehört zur Gruppe %2, die zum %3 vorgemerkt ist;
damit wäre das Paket zum %4 vorzumerken,
Sie haben es aber bei einem früheren Widerspruch zum %5 vorgemerkt.
Wie möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation>Das Paket %1 gehört zur Gruppe %2, die zum %3 vorgemerkt ist;
damit wäre das Paket zum %4 vorzumerken,
es gehört aber auch zur Gruppe %5 und ist daher zum %6 vorgemerkt.
Wie möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation>Widerspruch von Hand gelöst: Paket %1 wird zum %3 vorgemerkt</translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation>Für Gruppe %1 wird Paket %2 zum %3 vorgemerkt</translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation>Für Gruppe %1: Paket %2 war schon zum %3 vorgemerkt</translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation>Für Gruppe %1 wird Paket %2 nicht zum %3 vorgemerkt, weil %4</translation>
    </message>
    <message>
        <source>read the members of group %1</source>
        <translation>Lesen der Mitglieder der Gruppe %1</translation>
    </message>
    <message>
        <source>find the packages that %1 stands for in a group</source>
        <translation>Ermitteln der Pakete, für die %1 in einer Gruppe steht,</translation>
    </message>
    <message>
        <source>Unable to release yum lock</source>
        <translation>Die yum-Sperre lässt sich nicht freigeben</translation>
    </message>
    <message>
        <source>Internal error: cannot create python module yumIOC</source>
        <translation>Interner Fehler: Python-Modul yumIOC lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>Internal error: cannot find python rpm module</source>
        <translation>Interner Fehler: Python-Modul rpm nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: cannot find python rpm dict</source>
        <translation>Interner Fehler: Verzeichnis des Python-Moduls rpm nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: unable to open YumIO.py</source>
        <translation>Interner Fehler: YumIO.py lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Internal error: unable to execute YumIO.py</source>
        <translation>Interner Fehler: YumIO.py lässt sich nicht ausführen</translation>
    </message>
    <message>
        <source>Internal error: cannot find python YumIO</source>
        <translation>Interner Fehler: Python-Klasse YumIO nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: cannot create python yumIO</source>
        <translation>Interner Fehler: Python-Objekt yumIO lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation>Anwenden: OK</translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation>Nicht angewendet: abgebrochen</translation>
    </message>
    <message>
        <source>Confirmation: Yes</source>
        <translation>Bestätigung: Ja</translation>
    </message>
    <message>
        <source>Confirmation: No</source>
        <translation>Bestätigung: Nein</translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation>Gesamte Downloadgröße: %1
</translation>
    </message>
    <message>
        <source>Taken from directories of this machine: %1
</source>
        <translation>Aus Verzeichnissen dieses Rechners: %1
</translation>
    </message>
    <message>
        <source>Not all that rpm would do is in the listing. It would also remove what cannot stand beside the new packages:
%1
Go on?</source>
        <translation>Die Aufstellung enthält nicht alles, was rpm tun würde. Es würde auch entfernen, was sich mit den neuen Paketen nicht verträgt:
%1
Fortfahren?</translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation>Auszuführende Transaktion:
</translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation>Um Abhängigkeiten zu erfüllen, kommt hinzu:
</translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation>Weitere Änderungen:
</translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation>Als Abhängigkeit entfernt</translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation>Als Abhängigkeit installiert</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation>Als Abhängigkeit aktualisiert</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>Ersetzt</translation>
    </message>
    <message>
        <source>%1 %3-%4 (%2)</source>
        <translation>%1 %3-%4 (%2)</translation>
    </message>
    <message>
        <source>%1 %3:%4-%5 (%2)</source>
        <translation>%1 %3:%4-%5 (%2)</translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation> [%1]</translation>
    </message>
    <message>
        <source>	%1: %2
</source>
        <translation>	%1: %2
</translation>
    </message>
    <message>
        <source>	%1: %2 with %3
</source>
        <translation>	%1: %2 durch %3
</translation>
    </message>
    <message>
        <source>Internal error: tsInfo.%1 not found</source>
        <translation>Interner Fehler: tsInfo.%1 nicht gefunden</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Installiert: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Entfernt: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Geändert: %1</translation>
    </message>
    <message>
        <source>Not applying: another program changed the installed packages:
%1</source>
        <translation>Nichts angewendet: Ein anderes Programm hat die installierten Pakete verändert:
%1</translation>
    </message>
    <message>
        <source>Internal error: yum version not understood: %1 errno=%2 (%3)</source>
        <translation>Interner Fehler: yum-Version nicht verstanden: %1 errno=%2 (%3)</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (Prozess %2)</translation>
    </message>
    <message>
        <source>VOK Package Lock</source>
        <translation>VOK – Paketsperre</translation>
    </message>
    <message>
        <source>Another program is working on the packages of this system:
%1

Wait for it to finish, or give up?</source>
        <translation>Ein anderes Programm arbeitet an den Paketen dieses Systems:
%1

Warten, bis es fertig ist, oder aufgeben?</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Give Up</source>
        <translation>Aufgeben</translation>
    </message>
    <message>
        <source>Waiting for process %1</source>
        <translation>Auf Prozess %1 wird gewartet</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Auf %1 wird gewartet</translation>
    </message>
    <message>
        <source>Not waiting for %1</source>
        <translation>Auf %1 wird nicht gewartet</translation>
    </message>
    <message>
        <source>Something is signed with a key that this system does not know.

Key: %1
Owner: %2
Fingerprint: %3
Source: %4

Import the key, and trust what is signed with it?</source>
        <translation>Etwas ist mit einem Schlüssel signiert, den dieses System nicht kennt.

Schlüssel: %1
Inhaber: %2
Fingerabdruck: %3
Herkunft: %4

Den Schlüssel importieren und dem vertrauen, was damit signiert ist?</translation>
    </message>
    <message>
        <source>VOK Key Import</source>
        <translation>VOK – Schlüsselimport</translation>
    </message>
    <message>
        <source>Importing key %1</source>
        <translation>Schlüssel %1 wird importiert</translation>
    </message>
    <message>
        <source>Not importing key %1</source>
        <translation>Schlüssel %1 wird nicht importiert</translation>
    </message>
    <message>
        <source>Transaction: %1 done, %2 failed, %3 skipped</source>
        <translation>Transaktion: %1 erledigt, %2 fehlgeschlagen, %3 ausgelassen</translation>
    </message>
    <message>
        <source>Failed:</source>
        <translation>Fehlgeschlagen:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Ausgelassen:</translation>
    </message>
    <message>
        <source>Done, with errors:</source>
        <translation>Erledigt, mit Fehlern:</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>Erledigt:</translation>
    </message>
    <message>
        <source>VOK Transaction Report</source>
        <translation>VOK – Bericht der Transaktion</translation>
    </message>
    <message>
        <source>VOK Interrupted Transaction</source>
        <translation>VOK – Unterbrochene Transaktion</translation>
    </message>
    <message>
        <source>Testing a repository</source>
        <translation>Eine Paketquelle wird getestet</translation>
    </message>
    <message>
        <source>Testing the repository</source>
        <translation>Die Paketquelle wird getestet</translation>
    </message>
    <message>
        <source>test the repository</source>
        <translation>Test der Paketquelle</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Searching: Total Progress</source>
        <translation>Suche: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation>Die Suche wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Searching packages</source>
        <translation>Pakete werden durchsucht</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Reading packages</source>
        <translation>Pakete werden gelesen</translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation>Interner Fehler: TSINFO unerwartet: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions package %1 which does not appear to be a valid envra; interpreting as package name</source>
        <translation>Interner Fehler: TSINFO nennt das Paket %1, das keine gültige envra zu sein scheint; als Paketname gedeutet</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation>Interner Fehler: TSINFO nennt ein unbekanntes Paket: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation>Interner Fehler: TSINFO kündigt Installation oder Aktualisierung eines Pakets an, das schon aktuell zu sein scheint: %1</translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation>Abhängigkeiten werden aufgelöst</translation>
    </message>
    <message>
        <source>Internal error: Unable to find package for install/update/remove of %1.%2</source>
        <translation>Interner Fehler: Zum Installieren, Aktualisieren oder Entfernen von %1.%2 ist kein Paket zu finden</translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation>Transaktion läuft: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>getRpmHdrValue called for package with no hdr (i.e. not installed)</source>
        <translation>getRpmHdrValue für ein Paket ohne hdr aufgerufen (also nicht installiert)</translation>
    </message>
    <message numerus="yes">
        <source>Downloading repository contents for %n repositories</source>
        <translation>
            <numerusform>Inhalt von %n Paketquelle wird heruntergeladen</numerusform>
            <numerusform>Inhalt von %n Paketquellen wird heruntergeladen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n packages</source>
        <translation>
            <numerusform>%n Paket wird heruntergeladen</numerusform>
            <numerusform>%n Pakete werden heruntergeladen</numerusform>
        </translation>
    </message>
    <message>
        <source>getGroupItem_22 called for incorrect version of yum</source>
        <translation>getGroupItem_22 für die falsche yum-Version aufgerufen</translation>
    </message>
    <message>
        <source>getGroupItem_25 called for incorrect version of yum</source>
        <translation>getGroupItem_25 für die falsche yum-Version aufgerufen</translation>
    </message>
    <message>
        <source>Internal error: applyGrpConflict unexpected package state
</source>
        <translation>Interner Fehler: applyGrpConflict: unerwarteter Paketzustand
</translation>
    </message>
    <message>
        <source>Internal error: txmbr lacks pkgtup
</source>
        <translation>Interner Fehler: txmbr hat kein pkgtup
</translation>
    </message>
    <message>
        <source>Internal error: package has no relatedto
</source>
        <translation>Interner Fehler: das Paket hat kein relatedto
</translation>
    </message>
    <message>
        <source>Internal error: couldn&apos;t find obsoletedby package
</source>
        <translation>Interner Fehler: obsoletedby-Paket nicht gefunden
</translation>
    </message>
    <message>
        <source>Internal error: yumIO.tsInfo not found
</source>
        <translation>Interner Fehler: yumIO.tsInfo nicht gefunden
</translation>
    </message>
    <message>
        <source>Internal error: yumIO.makelists() did not return a tuple
</source>
        <translation>Interner Fehler: yumIO.makelists() gab kein Tupel zurück
</translation>
    </message>
    <message>
        <source>Internal error: yumIO.makelists() returned tuple of incorrect size
</source>
        <translation>Interner Fehler: yumIO.makelists() gab ein Tupel falscher Länge zurück
</translation>
    </message>
    <message>
        <source>VOK needs its share directory, which is %1 (the environment variable VOKSHARE can name another one), and the Python modules dnf and rpm of this system.</source>
        <translation>VOK braucht sein Verzeichnis mit gemeinsamen Dateien, das %1 ist (die Umgebungsvariable VOKSHARE kann ein anderes nennen), und die Python-Module dnf und rpm dieses Systems.</translation>
    </message>
    <message>
        <source>find replacements</source>
        <translation>Ermitteln der Ersetzungen</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>Zurückstufen</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Erneut installieren</translation>
    </message>
    <message>
        <source>Downgraded</source>
        <translation>Zurückgestuft</translation>
    </message>
    <message>
        <source>Dependency Downgraded</source>
        <translation>Wegen Abhängigkeiten zurückgestuft</translation>
    </message>
    <message>
        <source>Reinstalled</source>
        <translation>Erneut installiert</translation>
    </message>
    <message>
        <source>Dependency Reinstalled</source>
        <translation>Wegen Abhängigkeiten erneut installiert</translation>
    </message>
    <message>
        <source>	%1: %2 to %3
</source>
        <translation>	%1: %2 auf %3
</translation>
    </message>
    <message>
        <source>The transaction was only tested, because the configuration has tsflags=test. The test succeeded. No package was changed.</source>
        <translation>Die Transaktion wurde nur geprüft, weil die Konfiguration tsflags=test enthält. Die Prüfung war erfolgreich. Kein Paket wurde geändert.</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Geprüft:</translation>
    </message>
    <message>
        <source>This system does not use rpm: no package is installed through it.
To work on another system, such as a mounted image or a chroot, start VOK with the directory of that system in the variable VOKROOT:
sudo VOKROOT=/mnt/image vok</source>
        <translation>Dieses System verwendet rpm nicht: Damit ist kein Paket installiert.
Um an einem anderen System zu arbeiten, etwa einem eingehängten Abbild oder einem Chroot, starten Sie VOK mit dem Verzeichnis dieses Systems in der Variablen VOKROOT:
sudo VOKROOT=/mnt/image vok</translation>
    </message>
    <message>
        <source>Unable to start a thread: no memory is left, or too many processes are running.</source>
        <translation>Es kann kein Thread gestartet werden: Der Speicher ist erschöpft, oder es laufen zu viele Prozesse.</translation>
    </message>
    <message>
        <source>Less than %1 MiB of memory are left, which is too little for VOK and rpm. Quit other programs, or raise the limit, and try again.</source>
        <translation>Weniger als %1 MiB Speicher sind frei, zu wenig für VOK und rpm. Beenden Sie andere Programme oder erhöhen Sie die Grenze, und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>YumIO script</name>
    <message>
        <source>There is no room left in the cache directory %s.</source>
        <translation>Im Zwischenspeicher-Verzeichnis %s ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The packages have not been read yet.</source>
        <translation>Die Pakete sind noch nicht eingelesen.</translation>
    </message>
    <message>
        <source>%s
The repository is left out.</source>
        <translation>%s
Die Paketquelle wird ausgelassen.</translation>
    </message>
    <message>
        <source>Closing the package session: %s</source>
        <translation>Beim Schließen der Paketsitzung: %s</translation>
    </message>
    <message>
        <source>There is no repository %s.</source>
        <translation>Es gibt keine Paketquelle %s.</translation>
    </message>
    <message>
        <source>Repository %s: %s</source>
        <translation>Paketquelle %s: %s</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Removed files: %d. Freed: %s.</source>
        <translation>Gelöschte Dateien: %d. Gewonnen: %s.</translation>
    </message>
    <message>
        <source>%s cannot be removed: %s</source>
        <translation>%s lässt sich nicht löschen: %s</translation>
    </message>
    <message>
        <source>%s replaces the installed %s</source>
        <translation>%s ersetzt Installiertes: %s</translation>
    </message>
    <message>
        <source>a value is not UTF-8</source>
        <translation>ein Wert ist nicht UTF-8</translation>
    </message>
    <message>
        <source>The repository file %s is left out: %s</source>
        <translation>Die Paketquellen-Datei %s wird ausgelassen: %s</translation>
    </message>
    <message>
        <source>Unable to read the main configuration file %s: %s</source>
        <translation>Die Hauptkonfigurationsdatei %s ist nicht lesbar: %s</translation>
    </message>
    <message>
        <source>The main configuration file %s is malformed: %s</source>
        <translation>Die Hauptkonfigurationsdatei %s ist fehlerhaft: %s</translation>
    </message>
    <message>
        <source>Unable to make the directory %s: %s</source>
        <translation>Das Verzeichnis %s lässt sich nicht anlegen: %s</translation>
    </message>
    <message>
        <source>%s cannot be read: %s</source>
        <translation>%s ist nicht lesbar: %s</translation>
    </message>
    <message>
        <source>Run &quot;rpm --rebuilddb&quot; as the administrator, or restore the directory from a backup.</source>
        <translation>Führen Sie als Administrator „rpm --rebuilddb“ aus, oder spielen Sie das Verzeichnis aus einer Sicherung zurück.</translation>
    </message>
    <message>
        <source>The administrator can mend it by &quot;rpm --rebuilddb&quot; or from a backup.</source>
        <translation>Der Administrator kann sie mit „rpm --rebuilddb“ oder aus einer Sicherung wiederherstellen.</translation>
    </message>
    <message>
        <source>The rpm database cannot be read: %s</source>
        <translation>Die rpm-Datenbank ist nicht lesbar: %s</translation>
    </message>
    <message>
        <source>The rpm database in %s cannot be read:</source>
        <translation>Die rpm-Datenbank in %s ist nicht lesbar:</translation>
    </message>
    <message>
        <source>Running the final scriptlets</source>
        <translation>Die letzten Skripte laufen</translation>
    </message>
    <message>
        <source>Removing %s</source>
        <translation>%s wird entfernt</translation>
    </message>
    <message>
        <source>Internal error: transaction report: %s</source>
        <translation>Interner Fehler: Bericht der Transaktion: %s</translation>
    </message>
    <message>
        <source>%s is excluded by the configuration.</source>
        <translation>%s ist durch die Konfiguration ausgeschlossen.</translation>
    </message>
    <message>
        <source>{1} needs {0}, which no enabled repository offers.</source>
        <translation>{1} benötigt {0}, und keine aktivierte Paketquelle bietet es an.</translation>
    </message>
    <message>
        <source>No enabled repository offers {0}.</source>
        <translation>Keine aktivierte Paketquelle bietet {0} an.</translation>
    </message>
    <message>
        <source>{0} needs {1}, and nothing that offers it can be installed.</source>
        <translation>{0} benötigt {1}, und nichts, was es bereitstellt, lässt sich installieren.</translation>
    </message>
    <message>
        <source>{0} and {1} cannot be installed together.</source>
        <translation>{0} und {1} lassen sich nicht zusammen installieren.</translation>
    </message>
    <message>
        <source>{0} conflicts with itself.</source>
        <translation>{0} ist mit sich selbst unverträglich.</translation>
    </message>
    <message>
        <source>{0} cannot be there together with {2}.</source>
        <translation>{0} und {2} vertragen sich nicht.</translation>
    </message>
    <message>
        <source>{0} replaces {2}.</source>
        <translation>{0} ersetzt {2}.</translation>
    </message>
    <message>
        <source>{0} and {1} both replace {2}.</source>
        <translation>{0} und {1} ersetzen beide {2}.</translation>
    </message>
    <message>
        <source>The installed package {0} would be left without what it needs.</source>
        <translation>Dem installierten Paket {0} würde fehlen, was es benötigt.</translation>
    </message>
    <message>
        <source>{0} cannot be installed.</source>
        <translation>{0} lässt sich nicht installieren.</translation>
    </message>
    <message>
        <source>{0} is for another kind of machine.</source>
        <translation>{0} ist für eine andere Art von Rechner.</translation>
    </message>
    <message>
        <source>The newest version cannot be installed.</source>
        <translation>Die neueste Version lässt sich nicht installieren.</translation>
    </message>
    <message>
        <source>The removal would take {0}, which is protected because this system needs it.</source>
        <translation>Das Entfernen nähme {0} mit, das geschützt ist, weil dieses System es benötigt.</translation>
    </message>
    <message>
        <source>The removal would leave {0}, which is protected because this system needs it, without what it needs.</source>
        <translation>Durch das Entfernen fehlte {0}, das geschützt ist, weil dieses System es benötigt, etwas, das es selbst benötigt.</translation>
    </message>
    <message>
        <source>What was marked cannot be had all together: %s.</source>
        <translation>Was vorgemerkt ist, lässt sich nicht zusammen haben: %s.</translation>
    </message>
    <message>
        <source>and %d more</source>
        <translation>und %d weitere</translation>
    </message>
    <message>
        <source>%s is excluded by the settings of the repository %s (exclude=%s).</source>
        <translation>%s ist durch die Einstellungen der Paketquelle %s ausgeschlossen (exclude=%s).</translation>
    </message>
    <message>
        <source>%s is excluded by the main configuration file (exclude=%s).</source>
        <translation>%s ist durch die Hauptkonfigurationsdatei ausgeschlossen (exclude=%s).</translation>
    </message>
    <message>
        <source>DNF&apos;s group records cannot be read: %s</source>
        <translation>Die Gruppenaufzeichnungen von DNF sind nicht lesbar: %s</translation>
    </message>
    <message>
        <source>The last transaction was interrupted.</source>
        <translation>Die letzte Transaktion wurde unterbrochen.</translation>
    </message>
    <message>
        <source>Steps that had been done: %d of %d.</source>
        <translation>Erledigte Schritte: %d von %d.</translation>
    </message>
    <message>
        <source>Repeat the transaction to complete it.</source>
        <translation>Wiederholen Sie die Transaktion, um sie abzuschließen.</translation>
    </message>
    <message>
        <source>&quot;dnf remove --duplicates&quot; removes the older of what is installed twice.</source>
        <translation>„dnf remove --duplicates“ entfernt die ältere Version dessen, was doppelt installiert ist.</translation>
    </message>
    <message>
        <source>Nothing is missing; scriptlets may not have run to their end.</source>
        <translation>Es fehlt nichts; möglicherweise sind Paketskripte nicht zu Ende gelaufen.</translation>
    </message>
    <message>
        <source>Not installed: %s. If rpm was unpacking it, files of it may be there already.</source>
        <translation>Nicht installiert: %s. Wenn rpm es gerade entpackte, können Dateien davon schon vorhanden sein.</translation>
    </message>
    <message>
        <source>%s cannot be written: %s</source>
        <translation>%s lässt sich nicht schreiben: %s</translation>
    </message>
    <message>
        <source>A transaction was interrupted; what it was to do cannot be read: %s</source>
        <translation>Eine Transaktion wurde unterbrochen; was sie tun sollte, ist nicht lesbar: %s</translation>
    </message>
    <message>
        <source>Installed twice: %s beside %s.</source>
        <translation>Doppelt installiert: %s neben %s.</translation>
    </message>
    <message>
        <source>Not removed: %s</source>
        <translation>Nicht entfernt: %s</translation>
    </message>
    <message>
        <source>%s (metadata of the repository %s)</source>
        <translation>%s (Metadaten der Paketquelle %s)</translation>
    </message>
    <message>
        <source>its signature is wrong or the file is damaged (%s)</source>
        <translation>die Signatur ist falsch oder die Datei beschädigt (%s)</translation>
    </message>
    <message>
        <source>%s cannot be trusted: %s. Nothing was changed.</source>
        <translation>%s ist nicht vertrauenswürdig: %s. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>%s (package %s)</source>
        <translation>%s (Paket %s)</translation>
    </message>
    <message>
        <source>The key 0x%s of the repository %s was not imported.</source>
        <translation>Der Schlüssel 0x%s der Paketquelle %s wurde nicht importiert.</translation>
    </message>
    <message>
        <source>%s cannot be trusted: %s. %s
Nothing was changed.</source>
        <translation>%s ist nicht vertrauenswürdig: %s. %s
Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The package database is in use by process %d (%s).</source>
        <translation>Die Paketdatenbank wird vom Prozess %d (%s) benutzt.</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>unbekannter Befehl</translation>
    </message>
    <message>
        <source>Looking for the fastest of %s mirrors of %s</source>
        <translation>Der schnellste von %s Spiegeln von %s wird gesucht</translation>
    </message>
    <message>
        <source>%s is rebuilt from a delta</source>
        <translation>%s wird aus einem Delta zusammengesetzt</translation>
    </message>
    <message>
        <source>download failed</source>
        <translation>Download fehlgeschlagen</translation>
    </message>
    <message>
        <source>%s (the package needs %s, and a file system has only %s left)</source>
        <translation>%s (das Paket braucht %s, und auf einem Dateisystem sind nur noch %s frei)</translation>
    </message>
    <message>
        <source>rpm left it out because another package failed</source>
        <translation>rpm hat es ausgelassen, weil ein anderes Paket fehlschlug</translation>
    </message>
    <message>
        <source>%s was not installed</source>
        <translation>%s wurde nicht installiert</translation>
    </message>
    <message>
        <source>The plug-in %s fails and is left out: %s</source>
        <translation>Das Plugin %s versagt und wird ausgelassen: %s</translation>
    </message>
    <message>
        <source>A plug-in of DNF fails and is left out: %s</source>
        <translation>Ein Plugin von DNF versagt und wird ausgelassen: %s</translation>
    </message>
    <message>
        <source>Import the key 0x%s?
  Owner: %s
  Fingerprint: %s
  From: %s</source>
        <translation>Den Schlüssel 0x%s importieren?
  Inhaber: %s
  Fingerabdruck: %s
  Herkunft: %s</translation>
    </message>
    <message>
        <source>DNF finds no repository in it.</source>
        <translation>DNF findet darin keine Paketquelle.</translation>
    </message>
    <message>
        <source>Also needed, as a downgrade: %s</source>
        <translation>Außerdem nötig, als Rückkehr zu einer älteren Version: %s</translation>
    </message>
    <message>
        <source>Also needed, installed once more: %s</source>
        <translation>Außerdem nötig, erneut installiert: %s</translation>
    </message>
    <message>
        <source>Also needed: %s</source>
        <translation>Außerdem nötig: %s</translation>
    </message>
    <message>
        <source>The solver says:%s</source>
        <translation>Die Abhängigkeitsauflösung sagt:%s</translation>
    </message>
    <message>
        <source>Do the rest?</source>
        <translation>Den Rest ausführen?</translation>
    </message>
    <message>
        <source>Do it that way?</source>
        <translation>So ausführen?</translation>
    </message>
    <message>
        <source>The rest can be done without:</source>
        <translation>Der Rest ist möglich ohne:</translation>
    </message>
    <message>
        <source>%s is installed as marked, although %s replaces it.</source>
        <translation>%s wird wie vorgemerkt installiert, obwohl %s es ersetzt.</translation>
    </message>
    <message>
        <source>The transaction cannot be done:</source>
        <translation>Die Transaktion ist nicht möglich:</translation>
    </message>
    <message>
        <source>It can be done by removing:</source>
        <translation>Sie ist möglich, wenn entfernt wird:</translation>
    </message>
    <message>
        <source>The transaction cannot be done as marked:</source>
        <translation>Die Transaktion ist so, wie sie vorgemerkt ist, nicht möglich:</translation>
    </message>
    <message>
        <source>The package database in %s cannot be written: this needs the rights of the administrator.</source>
        <translation>Die Paketdatenbank in %s lässt sich nicht schreiben: Dazu sind die Rechte des Administrators nötig.</translation>
    </message>
    <message>
        <source>The package database in %s cannot be written: the file system is read-only, or the directory is missing.</source>
        <translation>Die Paketdatenbank in %s lässt sich nicht schreiben: Das Dateisystem ist schreibgeschützt, oder das Verzeichnis fehlt.</translation>
    </message>
    <message>
        <source>A transaction has run already; the packages must be read again.</source>
        <translation>Es lief schon eine Transaktion; die Pakete müssen neu eingelesen werden.</translation>
    </message>
    <message>
        <source>Nothing to do.</source>
        <translation>Es gibt nichts zu tun.</translation>
    </message>
    <message>
        <source>rpm would also remove:</source>
        <translation>rpm würde auch entfernen:</translation>
    </message>
    <message>
        <source>Go on?</source>
        <translation>Fortfahren?</translation>
    </message>
    <message>
        <source>The report of the transaction failed: %s</source>
        <translation>Der Bericht der Transaktion ist fehlgeschlagen: %s</translation>
    </message>
    <message>
        <source>rpm waits for its database, which is locked by process %d (%s).</source>
        <translation>rpm wartet auf seine Datenbank, die vom Prozess %d (%s) gesperrt ist.</translation>
    </message>
    <message>
        <source>Cancelled by the user</source>
        <translation>Vom Benutzer abgebrochen</translation>
    </message>
    <message>
        <source>There is no main configuration file; none of these exists: %s. One that holds nothing but the line [main] will do.</source>
        <translation>Es gibt keine Hauptkonfigurationsdatei; keine von diesen ist vorhanden: %s. Eine, in der nichts als die Zeile [main] steht, genügt.</translation>
    </message>
    <message>
        <source>The rpm database in %s cannot be read in place, and cannot be copied: %s</source>
        <translation>Die rpm-Datenbank in %s kann nicht an Ort und Stelle gelesen und nicht kopiert werden: %s</translation>
    </message>
    <message>
        <source>The configuration in %s cannot be written: this needs the rights of the administrator.</source>
        <translation>In die Konfiguration in %s kann nicht geschrieben werden: Dazu braucht es die Rechte des Administrators.</translation>
    </message>
    <message>
        <source>The configuration in %s cannot be written: the file system is read-only.</source>
        <translation>In die Konfiguration in %s kann nicht geschrieben werden: Das Dateisystem ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Remove these too?</source>
        <translation>Auch diese entfernen?</translation>
    </message>
    <message>
        <source>Another program has changed the installed packages.</source>
        <translation>Ein anderes Programm hat die installierten Pakete verändert.</translation>
    </message>
    <message>
        <source>An excluded package is removed only if it is marked for removal itself.</source>
        <translation>Ein ausgeschlossenes Paket wird nur entfernt, wenn es selbst zum Entfernen vorgemerkt ist.</translation>
    </message>
    <message>
        <source>The installations and updates would also remove:</source>
        <translation>Die Installationen und Aktualisierungen würden auch entfernen:</translation>
    </message>
    <message>
        <source>tsflags=test in the configuration: the transaction is only tested. No package is changed.</source>
        <translation>tsflags=test in der Konfiguration: Die Transaktion wird nur geprüft. Kein Paket wird geändert.</translation>
    </message>
    <message>
        <source>tsflags=justdb in the configuration: only the package database is changed. No files are installed or removed, and no scriptlets are run.</source>
        <translation>tsflags=justdb in der Konfiguration: Nur die Paketdatenbank wird geändert. Es werden keine Dateien installiert oder entfernt und keine Paketskripte ausgeführt.</translation>
    </message>
    <message>
        <source>tsflags=noscripts in the configuration: no scriptlets are run.</source>
        <translation>tsflags=noscripts in der Konfiguration: Es werden keine Paketskripte ausgeführt.</translation>
    </message>
    <message>
        <source>line %d is not UTF-8</source>
        <translation>Zeile %d ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>The variable file %s is left out: %s</source>
        <translation>Die Variablendatei %s wird ausgelassen: %s</translation>
    </message>
    <message>
        <source>The key 0x%s, which signs its metadata, was not imported.</source>
        <translation>Der Schlüssel 0x%s, mit dem ihre Metadaten signiert sind, wurde nicht importiert.</translation>
    </message>
    <message>
        <source>If this system does not use rpm, start VOK with the directory of another system: sudo VOKROOT=/mnt/image vok</source>
        <translation>Wenn dieses System rpm nicht verwendet, starten Sie VOK mit dem Verzeichnis eines anderen Systems: sudo VOKROOT=/mnt/image vok</translation>
    </message>
    <message>
        <source>%s is not a plain file and is not opened. Remove it.</source>
        <translation>%s ist keine gewöhnliche Datei und wird nicht geöffnet. Löschen Sie sie.</translation>
    </message>
    <message>
        <source>%s is a symbolic link that leads out of %s, or no file at all, and is not opened. Remove it, or make it a file or directory.</source>
        <translation>%s ist ein symbolischer Link, der aus %s hinausführt, oder gar keine Datei, und wird nicht geöffnet. Löschen Sie den Eintrag oder ersetzen Sie ihn durch eine Datei oder ein Verzeichnis.</translation>
    </message>
    <message>
        <source>The metadata cannot be processed: %s</source>
        <translation>Die Metadaten können nicht verarbeitet werden: %s</translation>
    </message>
    <message>
        <source>Repository %s: packages are left out because their name, version, release, architecture or location is malformed: %s</source>
        <translation>Paketquelle %s: Pakete mit fehlerhaftem Namen, Version, Release, Architektur oder Ort werden ausgelassen: %s</translation>
    </message>
    <message>
        <source>Repository %s: groups without an identifier are left out.</source>
        <translation>Paketquelle %s: Gruppen ohne Kennung werden ausgelassen.</translation>
    </message>
    <message>
        <source>Repository %s: the groups are left out because they cannot be read.</source>
        <translation>Paketquelle %s: Die Gruppen werden ausgelassen, weil sie nicht gelesen werden können.</translation>
    </message>
    <message>
        <source>VOK has %d files open and may open %d at most, which leaves too few for rpm. Quit VOK and start it again, with a higher limit if necessary.</source>
        <translation>VOK hat %d Dateien geöffnet und darf höchstens %d öffnen; für rpm bleiben zu wenige. Beenden Sie VOK und starten Sie es neu, wenn nötig mit einer höheren Grenze.</translation>
    </message>
    <message>
        <source>%s can be neither removed nor rewritten: %s. Each start of VOK reads it and reports a transaction: remove the file.</source>
        <translation>%s kann weder gelöscht noch überschrieben werden: %s. VOK liest die Datei bei jedem Start und meldet eine Transaktion: Löschen Sie sie.</translation>
    </message>
    <message>
        <source>The rpm database in %s was moved or replaced during the last transaction, probably by a scriptlet. What is installed cannot be told from what is there now. Move the former directory back, or restore it from a backup, before you install or remove anything.</source>
        <translation>Die rpm-Datenbank in %s wurde während der letzten Transaktion verschoben oder ersetzt, wahrscheinlich von einem Paketskript. Was installiert ist, lässt sich aus der jetzigen nicht erkennen. Verschieben Sie das frühere Verzeichnis zurück oder stellen Sie es aus einer Sicherung wieder her, bevor Sie etwas installieren oder entfernen.</translation>
    </message>
    <message>
        <source>rpm completed the last transaction, but VOK could not record it.</source>
        <translation>rpm hat die letzte Transaktion abgeschlossen, aber VOK konnte das nicht vermerken.</translation>
    </message>
    <message>
        <source>rpm&apos;s database in %s was moved away during the last transaction, and is back.</source>
        <translation>Die rpm-Datenbank in %s wurde während der letzten Transaktion verschoben und ist wieder da.</translation>
    </message>
    <message>
        <source>The lock file %s cannot be locked: %s. Its file system may not support locks: mount one that does (such as tmpfs) on its directory.</source>
        <translation>Die Sperrdatei %s kann nicht gesperrt werden: %s. Vielleicht unterstützt ihr Dateisystem keine Sperren: Hängen Sie an ihrem Verzeichnis eines ein, das sie unterstützt (etwa tmpfs).</translation>
    </message>
    <message>
        <source>not known, because rpm&apos;s database was moved or replaced</source>
        <translation>nicht bekannt, weil die rpm-Datenbank verschoben oder ersetzt wurde</translation>
    </message>
    <message>
        <source>Less than %d MiB of memory are left, which is too little for VOK and rpm. Quit other programs, or raise the limit, and try again.</source>
        <translation>Weniger als %d MiB Speicher sind frei, zu wenig für VOK und rpm. Beenden Sie andere Programme oder erhöhen Sie die Grenze, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>A scriptlet of %s has been running for %d seconds inside rpm.</source>
        <translation>Ein Paketskript von %s läuft seit %d Sekunden innerhalb von rpm.</translation>
    </message>
    <message>
        <source>A scriptlet of %s has been running for %d seconds: process %d (%s).</source>
        <translation>Ein Paketskript von %s läuft seit %d Sekunden: Prozess %d (%s).</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>EntryCheck</name>
    <message>
        <source>a blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the character %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the character U+%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF takes no repository named main</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF takes no Identifier with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Identifier %1 differs in case only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF leaves out the whole file for a line without &quot;=&quot;: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF does not know the option %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  Is %2 meant?</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1() failed; errno = %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Bitstream Vera Sans Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DejaVu Sans Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monospace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Courier</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HProgressBar</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JobProgress</name>
    <message>
        <source>Total progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the current step</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Log::FindBar</name>
    <message>
        <source>Find:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Log::Window</name>
    <message>
        <source>VOK Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a text in the Log Window (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the log messages up to the Detail level to a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Log Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to save the log to %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> ... (%n characters more; Save writes them all)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The search was cancelled; the table is as before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search has not seen the change logs of available packages: they were not loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search has not seen the file lists of available packages: they were not loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search has not seen the file lists and change logs of available packages: they were not loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlisted Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some packages have actions specified, but because of the current
Mode, Filter, Search, State, Duplicates, and Groups settings,
these packages are not listed currently.
Pressing Apply will cause these actions to occur nonetheless.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Headers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Sqlite Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;ead the Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collects the packages of the system and of the repositories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not filter should include packages with duplicate names.
If unchecked, the package with the architecture closest to the base architecture is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;Update of Listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the Action to Update for any packages which are Installed but Out-of-date,
and which are currently listed based on the the Mode, Filter, Search, State, Duplicates, and Groups settings.
Does not Apply Actions automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the current step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the running operation.
An rpm transaction that has begun cannot be stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packages were not collected again; the table is as before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packages were not collected. Refresh tries again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search was cancelled. The table lists nothing until it has been run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No longer possible, and not marked any more: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marked now in another version: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean sqlite data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the installed packages since they were collected. Nothing was applied.

Refresh the table? What is marked stays marked where that is still possible.

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Yum Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;VOK %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VOK, Vokmanager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;For more information see the documentation in /usr/share/doc/vok-%1.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling the running operation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Transaction Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling the running operation; VOK quits when it has stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK quits when the running operation is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An rpm transaction is running and cannot be stopped. Close again to quit when it is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out for lack of the right to read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong user name or password for repository %1.

%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Yum Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packages have not been read yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the packages...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::ActionContextMenu</name>
    <message>
        <source>&amp;Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops loading; the dialog stays open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the update changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What requires it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;tails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dep&amp;endencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change &amp;Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Required By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the paths that hold this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text in the path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Describe the row above this one (Alt+Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Describe the row below this one (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the files of the repository in the web browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other data are being loaded; this page follows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading the file lists of the repositories...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading the change logs of the repositories...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Yum Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another operation is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file lists are not loaded.

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change logs are not loaded.

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (installed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other versions:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Architecture:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%L2 bytes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>License:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packager:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build host:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source package:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relocations:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Provides:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requires:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obsoletes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replaces the installed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no change log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing that is installed requires it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Architecture: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed size: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change log has nothing new.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes since the installed version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The repository keeps no older changes; there may have been others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mandatory packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optional packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conditional packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Page</name>
    <message>
        <source>L&amp;oad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Why this page is empty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::Model</name>
    <message>
        <source>Update package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action to be performed on the package, if any: Update, Install, Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::Texts</name>
    <message>
        <source>View Updatable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No packages are listed.
&quot;%1&quot; hides most of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No packages are listed.
Most of them are hidden because &quot;Include Duplicates&quot; is not checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No packages are listed.
Most of them are hidden because &quot;Include Groups&quot; is not checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No packages are listed.
The regular expression &quot;%1&quot; hides most of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No packages are listed.
The search has not been run to its end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no packages.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Left and Right choose a column, Return sorts by it, Ctrl+Left and Ctrl+Right move it, Plus and Minus change its width. The menu key shows and hides columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space changes the action of the current package.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;All Columns in Their Order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Progress::Minion</name>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retrying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Started Yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 / %2 (%3%%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n downloads</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Python</name>
    <message>
        <source>Internal error: pyExceptExpect called with NULL
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: python exception occurred, but exception information was empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: python exception occurred from C code.
When reporting this issue, please include the contents of the
Log window, which should contain a walkback.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot start the python interpreter
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find python __main__ module
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find python __main__ dict
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: python statement too long
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: python expression too long
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: pyString passed NULL python object
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoAuth::Checker</name>
    <message>
        <source>The password will be written to %1. A file that gets its first password can no longer be read by other users.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VOK Authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URLs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication name for a repository using the kivvet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication password for a repository using the kivvet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoBrowse</name>
    <message>
        <source>The address holds a password, which is left out, because other users could read it:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::Config</name>
    <message>
        <source>Unique identifier for the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;URLs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mirror list URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kivvet Authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication name for a repository using the kivvet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication password for a repository using the kivvet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ot&amp;her Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check &amp;GPG Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort &amp;Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(No)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Kivvet Authentication Name specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Kivvet Authentication Password specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the variables replaced:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VOK Repository Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other users can read %1 now.  They cannot any more once it holds this password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the changes to this repository configuration?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VOK Repository Configuration Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier, name or URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only the repositories whose identifier, name or URLs contain this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what Apply would change in which file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be applied, because these files cannot be read:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n removed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Some files cannot be read, so nothing can be applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the changes to the repository configurations?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>(new)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sess</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::PreviewDialog</name>
    <message>
        <source>VOK Repository Configuration Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be written:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file would be another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  (another password)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::SortFilterProxyModel</name>
    <message>
        <source>Used in this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::TestRow</name>
    <message>
        <source>&amp;Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try to reach the repository as it is described here.  Nothing is saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ancel Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the test; the dialog stays open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another operation is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is of the repository before the last changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no URL to test.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The repository can be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The repository cannot be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has repository metadata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 refuses the user name or the password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 wants a user name and a password, or lets nobody in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The host of %1 is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The host of %1 refuses the connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of %1 is not accepted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no repodata/repomd.xml.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no list of mirrors at %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy on the way to %1 cannot be reached or used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What %1 has as repodata/repomd.xml is no repository metadata.  DNF takes the first that it finds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of mirrors at %1 names none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF does not take it as it is: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Left and Right choose a column, Return sorts by it, Ctrl+Left and Ctrl+Right move it, Plus and Minus change its width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repositories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space toggles the check mark of the current cell, Return edits the repository, Delete removes, Insert adds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScrollableDialog</name>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebBrowser</name>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address cannot be opened:
%1

%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>YumConfIO</name>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;main&quot; names the section of the main options, never a repository.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: what it would hold cannot be told apart from other sections.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, in %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the identifier holds a line break.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name holds a line break.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the mirror list URL holds a line break.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the other options begin with a blank, so that &quot;%1&quot; would continue the line above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the other options, &quot;%1&quot; would be the head of a section.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the other options, &quot;%1&quot; sets an option that has a field of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds characters that cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF takes an indented line for the head of a section: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These identifiers differ in case only: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files are not as they were read; another program changed them, or they could not be read:

%1

What was changed there is lost when they are written or removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; errno = %2 (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Repository Editor Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 gets its first password, and other users of this computer can no longer read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is written, because what these files hold is not known:
%1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is written, because it would not be read as it is meant:

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written before that:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not written, and still to be applied:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything was written, but these files are not removed, and what they hold is still configured:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Applying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>apply changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: Unable to find installed version for package update %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add group %1 to groups list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Sqlite Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yumIO.repos.repos not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yumIO.repos.repos not a dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>setup transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>collect updatable packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>collect installed and available packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>collect groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.setupTsGroup failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.collectGroupInfo failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: groupInfo.visible_groups not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: group without name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find group&apos;s installed flag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find groupInfo.group_installed[&apos;%s&apos;]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::pyString called with NULL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::pyString did not understand type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::pyStringX did not understand type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: time not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: package size not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: package size result not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s changelog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>collect filelists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>collect miscellaneous data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: unexpected progress name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading installed packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mirror list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: collect grab size not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: unexpected progress filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: apply grab size not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback UNINST of %1 not expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback UNINST of %1 too many times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: Unable to find package for install/update of %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback REMOVE/COMPLETE of %1 not expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: Unable to find package for %1 of %2.%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Yum Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Yum Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to %1: I/O Error: %2

Emitting a walkback to the Log window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to %1: KeyboardInterrupt

This usually means VOK was sent signal SIGINT, SIGTERM, or similar.

But urlgrabber also can raise this error for several situations where it is just guessing.
So, emitting a walkback to the Log window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: python assertion failed
When reporting this issue, please include the contents of the
Log window, which should contain a walkback.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to %1: metadata unavailable from all repo mirrors:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to %1: a repository&apos;s sqlite database was locked unexpectedly
On some distributions, PackageKit has been known to cause this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to reap children; errno=%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reaped zombie child %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to disable SIGCHLD signal handler; errno=%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to restore SIGCHLD signal handler; errno=%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>b</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read the members of group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find the packages that %1 stands for in a group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to release yum lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot create python module yumIOC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find python rpm module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find python rpm dict</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: unable to open YumIO.py</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: unable to execute YumIO.py</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find python YumIO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot create python yumIO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Query</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmation: Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmation: No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken from directories of this machine: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all that rpm would do is in the listing. It would also remove what cannot stand beside the new packages:
%1
Go on?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %3-%4 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %3:%4-%5 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>	%1: %2
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>	%1: %2 with %3
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: tsInfo.%1 not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not applying: another program changed the installed packages:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yum version not understood: %1 errno=%2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Package Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is working on the packages of this system:
%1

Wait for it to finish, or give up?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for process %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not waiting for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something is signed with a key that this system does not know.

Key: %1
Owner: %2
Fingerprint: %3
Source: %4

Import the key, and trust what is signed with it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Key Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not importing key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction: %1 done, %2 failed, %3 skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done, with errors:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Transaction Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOK Interrupted Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing a repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>test the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions package %1 which does not appear to be a valid envra; interpreting as package name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: Unable to find package for install/update/remove of %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>getRpmHdrValue called for package with no hdr (i.e. not installed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Downloading repository contents for %n repositories</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n packages</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>getGroupItem_22 called for incorrect version of yum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>getGroupItem_25 called for incorrect version of yum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: applyGrpConflict unexpected package state
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: txmbr lacks pkgtup
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: package has no relatedto
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: couldn&apos;t find obsoletedby package
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yumIO.tsInfo not found
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yumIO.makelists() did not return a tuple
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yumIO.makelists() returned tuple of incorrect size
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>YumIO script</name>
    <message>
        <source>There is no room left in the cache directory %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packages have not been read yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s
The repository is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing the package session: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no repository %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository %s: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed files: %d. Freed: %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s cannot be removed: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s replaces the installed %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value is not UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The repository file %s is left out: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no main configuration file; none of these exists: %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read the main configuration file %s: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The main configuration file %s is malformed: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to make the directory %s: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s cannot be read: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run &quot;rpm --rebuilddb&quot; as the administrator, or restore the directory from a backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The administrator can mend it by &quot;rpm --rebuilddb&quot; or from a backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rpm database cannot be read: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rpm database in %s cannot be read:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running the final scriptlets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: transaction report: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s is excluded by the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{1} needs {0}, which no enabled repository offers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No enabled repository offers {0}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} needs {1}, and nothing that offers it can be installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} and {1} cannot be installed together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} conflicts with itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} cannot be there together with {2}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} replaces {2}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} and {1} both replace {2}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installed package {0} would be left without what it needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} cannot be installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} is for another kind of machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The newest version cannot be installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The removal would take {0}, which is protected because this system needs it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The removal would leave {0}, which is protected because this system needs it, without what it needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was marked cannot be had all together: %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %d more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s is excluded by the settings of the repository %s (exclude=%s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s is excluded by the main configuration file (exclude=%s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF&apos;s group records cannot be read: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last transaction was interrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps that had been done: %d of %d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat the transaction to complete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;dnf remove --duplicates&quot; removes the older of what is installed twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is missing; scriptlets may not have run to their end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not installed: %s. If rpm was unpacking it, files of it may be there already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s cannot be written: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A transaction was interrupted; what it was to do cannot be read: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed twice: %s beside %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not removed: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s (metadata of the repository %s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its signature is wrong or the file is damaged (%s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s cannot be trusted: %s. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s (package %s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key 0x%s of the repository %s was not imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s cannot be trusted: %s. %s
Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The package database is in use by process %d (%s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for the fastest of %s mirrors of %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s is rebuilt from a delta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>download failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s (the package needs %s, and a file system has only %s left)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rpm left it out because another package failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s was not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %s fails and is left out: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plug-in of DNF fails and is left out: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import the key 0x%s?
  Owner: %s
  Fingerprint: %s
  From: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNF finds no repository in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also needed, as a downgrade: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also needed, installed once more: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also needed: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The solver says:%s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do the rest?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do it that way?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rest can be done without:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove it too?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s is installed as marked, although %s replaces it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transaction cannot be done:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It can be done by removing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is marked for installation cannot be there together with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transaction cannot be done as marked:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The package database in %s cannot be written: this needs the rights of the administrator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The package database in %s cannot be written: the file system is read-only, or the directory is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A transaction has run already; the packages must be read again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rpm would also remove:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report of the transaction failed: %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rpm waits for its database, which is locked by process %d (%s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled by the user</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

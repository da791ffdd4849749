<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CountLine</name>
    <message numerus="yes">
        <source>%Ln listed</source>
        <translation>
            <numerusform>%Ln listed</numerusform>
            <numerusform>%Ln listed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln selected</numerusform>
            <numerusform>%Ln selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to update</source>
        <translation>
            <numerusform>%Ln to update</numerusform>
            <numerusform>%Ln to update</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to install</source>
        <translation>
            <numerusform>%Ln to install</numerusform>
            <numerusform>%Ln to install</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to remove</source>
        <translation>
            <numerusform>%Ln to remove</numerusform>
            <numerusform>%Ln to remove</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Log::Window</name>
    <message numerus="yes">
        <source> ... (%n characters more; Save writes them all)</source>
        <translation>
            <numerusform> ... (%n character more; Save writes it too)</numerusform>
            <numerusform> ... (%n characters more; Save writes them all)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%Ln package(s) are marked and not applied.</source>
        <translation>
            <numerusform>%Ln package is marked and not applied.</numerusform>
            <numerusform>%Ln packages are marked and not applied.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln package(s) would replace installed ones of other names.</source>
        <translation>
            <numerusform>%Ln package would replace installed ones of other names.</numerusform>
            <numerusform>%Ln packages would replace installed ones of other names.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln files</source>
        <translation>
            <numerusform>%L1 of %Ln file</numerusform>
            <numerusform>%L1 of %Ln files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Progress::Minion</name>
    <message numerus="yes">
        <source>%n downloads</source>
        <translation>
            <numerusform>%n download</numerusform>
            <numerusform>%n downloads</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message numerus="yes">
        <source>%1: %n removed</source>
        <translation>
            <numerusform>%1: %n removed</numerusform>
            <numerusform>%1: %n removed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message numerus="yes">
        <source>Downloading repository contents for %n repositories</source>
        <translation>
            <numerusform>Downloading repository contents for %n repository</numerusform>
            <numerusform>Downloading repository contents for %n repositories</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Downloading %n packages</source>
        <translation>
            <numerusform>Downloading %n package</numerusform>
            <numerusform>Downloading %n packages</numerusform>
        </translation>
    </message>
</context>
</TS>

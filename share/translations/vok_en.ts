<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Menstrual Age (Weeks)</source>
        <translation>Schwangerschaftsalter (Wochen)</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Gravidity</source>
        <translation>&amp;Gravidität</translation>
    </message>
    <message>
        <source>%1, %2 to %3 mm</source>
        <translation>%1, von %2 bis %3 mm</translation>
    </message>
</context>
<context>
    <name>NCDocument</name>
    <message>
        <source>%ldw %ldd</source>
        <translation>%ld Wo. %ld T.</translation>
    </message>
    <message>
        <source>Twin 1</source>
        <translation>1. Zwilling</translation>
    </message>
    <message>
        <source>Twin 2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>Auto-posted %n recurring transaction(s)</source>
        <translation>
            <numerusform>Auto-posted %n recurring transaction</numerusform>
            <numerusform>Auto-posted %n recurring transactions</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PayeeScreen</name>
    <message numerus="yes">
        <source>Merged %n transaction(s).</source>
        <translation>
            <numerusform>Merged %n transaction.</numerusform>
            <numerusform>Merged %n transactions.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renamed %n transaction(s).</source>
        <translation>
            <numerusform>Renamed %n transaction.</numerusform>
            <numerusform>Renamed %n transactions.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message numerus="yes">
        <source>%n account(s)</source>
        <translation>
            <numerusform>%n account</numerusform>
            <numerusform>%n accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  •  %n recurring due</source>
        <translation>
            <numerusform>  •  %n recurring due</numerusform>
            <numerusform>  •  %n recurring due</numerusform>
        </translation>
    </message>
</context>
</TS>

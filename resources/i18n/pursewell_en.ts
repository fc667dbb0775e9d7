<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ImportScreen</name>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n file selected</numerusform>
            <numerusform>%n files selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message numerus="yes">
        <source>%n transaction(s) imported</source>
        <translation>
            <numerusform>%n transaction imported</numerusform>
            <numerusform>%n transactions imported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n transfer(s) linked across accounts</source>
        <translation>
            <numerusform>%n transfer linked across accounts</numerusform>
            <numerusform>%n transfers linked across accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  (including %n linked to previously imported row(s))</source>
        <translation>
            <numerusform>  (including %n linked to previously imported row)</numerusform>
            <numerusform>  (including %n linked to previously imported rows)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate(s) skipped</source>
        <translation>
            <numerusform>%n duplicate skipped</numerusform>
            <numerusform>%n duplicates skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unparseable)</source>
        <translation>
            <numerusform>%n record skipped (unparseable)</numerusform>
            <numerusform>%n records skipped (unparseable)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n metadata record(s) skipped</source>
        <translation>
            <numerusform>%n metadata record skipped</numerusform>
            <numerusform>%n metadata records skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unmapped source account)</source>
        <translation>
            <numerusform>%n record skipped (unmapped source account)</numerusform>
            <numerusform>%n records skipped (unmapped source account)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (database error — see log)</source>
        <translation>
            <numerusform>%n record skipped (database error — see log)</numerusform>
            <numerusform>%n records skipped (database error — see log)</numerusform>
        </translation>
    </message>
</context>
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
    <name>SettingsBackupSection</name>
    <message numerus="yes">
        <source>

%n error(s) occurred.</source>
        <translation>
            <numerusform>

%n error occurred.</numerusform>
            <numerusform>

%n errors occurred.</numerusform>
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

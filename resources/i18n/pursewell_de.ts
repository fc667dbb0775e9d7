<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccountFormDialog</name>
    <message>
        <source>Opening Balance</source>
        <translation>Anfangssaldo</translation>
    </message>
    <message>
        <source>New Account</source>
        <translation>Neues Konto</translation>
    </message>
    <message>
        <source>Edit Account</source>
        <translation>Konto bearbeiten</translation>
    </message>
    <message>
        <source>Account name</source>
        <translation>Name des Kontos</translation>
    </message>
    <message>
        <source>Bank name (optional)</source>
        <translation>Name der Bank (optional)</translation>
    </message>
    <message>
        <source>Last 4 digits (optional)</source>
        <translation>Letzte 4 Ziffern (optional)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>Starting &amp;Balance:</source>
        <translation>Anfangs&amp;saldo:</translation>
    </message>
    <message>
        <source>&amp;As of:</source>
        <translation>Stand &amp;vom:</translation>
    </message>
    <message>
        <source>&amp;Institution:</source>
        <translation>&amp;Institut:</translation>
    </message>
    <message>
        <source>Account &amp;Number:</source>
        <translation>&amp;Kontonummer:</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
</context>
<context>
    <name>AccountSharingService</name>
    <message>
        <source>Failed to share account (HTTP %1)</source>
        <translation>Das Konto konnte nicht freigegeben werden (HTTP %1)</translation>
    </message>
</context>
<context>
    <name>AccountTypeName</name>
    <message>
        <source>Checking</source>
        <translation>Girokonto</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Sparkonto</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Kreditkarte</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Bargeld</translation>
    </message>
    <message>
        <source>Investment</source>
        <translation>Depot</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Database Error</source>
        <translation>Datenbankfehler</translation>
    </message>
    <message>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>Die Datenbank konnte nicht initialisiert werden.

Datenverzeichnis: %1

Bitte prüfen Sie die Dateiberechtigungen und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>BackupService</name>
    <message>
        <source>Failed to open ZIP archive</source>
        <translation>Das ZIP-Archiv konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Invalid backup: missing manifest.json</source>
        <translation>Ungültige Sicherung: manifest.json fehlt</translation>
    </message>
    <message>
        <source>Unsupported backup version: %1</source>
        <translation>Nicht unterstützte Version der Sicherung: %1</translation>
    </message>
    <message>
        <source>%1: unexpected error</source>
        <translation>%1: unerwarteter Fehler</translation>
    </message>
    <message>
        <source>%1: invalid JSON</source>
        <translation>%1: ungültiges JSON</translation>
    </message>
    <message>
        <source>%1: unknown column &quot;%2&quot;</source>
        <translation>%1: unbekannte Spalte „%2“</translation>
    </message>
</context>
<context>
    <name>CategoriesScreen</name>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Search categories...</source>
        <translation>Kategorien suchen...</translation>
    </message>
    <message>
        <source>+ New Category</source>
        <translation>+ Neue Kategorie</translation>
    </message>
    <message>
        <source>&amp;New Category</source>
        <translation>&amp;Neue Kategorie</translation>
    </message>
    <message>
        <source>Add &amp;Subcategory</source>
        <translation>&amp;Unterkategorie hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete Category</source>
        <translation>Kategorie löschen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Transactions using this category will become uncategorized.</source>
        <translation>„%1“ löschen? Buchungen mit dieser Kategorie haben danach keine Kategorie mehr.</translation>
    </message>
</context>
<context>
    <name>CategoryFormDialog</name>
    <message>
        <source>Edit Category</source>
        <translation>Kategorie bearbeiten</translation>
    </message>
    <message>
        <source>New Category</source>
        <translation>Neue Kategorie</translation>
    </message>
    <message>
        <source>New Subcategory</source>
        <translation>Neue Unterkategorie</translation>
    </message>
    <message>
        <source>Category name</source>
        <translation>Name der Kategorie</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Einnahme</translation>
    </message>
    <message>
        <source>Tax-relevant</source>
        <translation>Steuerlich relevant</translation>
    </message>
    <message>
        <source>Mark this category for inclusion in tax-time reports.</source>
        <translation>Diese Kategorie in die Steuerberichte aufnehmen.</translation>
    </message>
    <message>
        <source>e.g. charitable_contributions, mortgage_interest</source>
        <translation>z.&#xa0;B. charitable_contributions, mortgage_interest</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>Tax &amp;Code:</source>
        <translation>&amp;Steuercode:</translation>
    </message>
    <message>
        <source>&amp;Parent:</source>
        <translation>Ü&amp;bergeordnet:</translation>
    </message>
</context>
<context>
    <name>CategoryService</name>
    <message>
        <source>Charitable Donations</source>
        <translation>Spenden</translation>
    </message>
    <message>
        <source>Medical Expenses</source>
        <translation>Krankheitskosten</translation>
    </message>
    <message>
        <source>Business Expenses</source>
        <translation>Berufliche Ausgaben</translation>
    </message>
    <message>
        <source>Home Office</source>
        <translation>Homeoffice</translation>
    </message>
    <message>
        <source>Education Expenses</source>
        <translation>Aus- und Weiterbildung</translation>
    </message>
    <message>
        <source>State &amp; Local Taxes</source>
        <translation>Landes- und Gemeindesteuern</translation>
    </message>
    <message>
        <source>Mortgage Interest</source>
        <translation>Hypothekenzinsen</translation>
    </message>
    <message>
        <source>Property Tax</source>
        <translation>Grundsteuer</translation>
    </message>
    <message>
        <source>Housing</source>
        <translation>Wohnen</translation>
    </message>
    <message>
        <source>Rent/Mortgage Payment</source>
        <translation>Miete/Hypothek</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung &amp; Reparatur</translation>
    </message>
    <message>
        <source>HOA</source>
        <translation>Hausgeld</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Nebenkosten</translation>
    </message>
    <message>
        <source>Electric</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Transportation</source>
        <translation>Mobilität</translation>
    </message>
    <message>
        <source>Gas/Fuel</source>
        <translation>Tanken</translation>
    </message>
    <message>
        <source>Car Payment</source>
        <translation>Autokredit</translation>
    </message>
    <message>
        <source>Auto Insurance</source>
        <translation>Kfz-Versicherung</translation>
    </message>
    <message>
        <source>Public Transit</source>
        <translation>Bus &amp; Bahn</translation>
    </message>
    <message>
        <source>Groceries</source>
        <translation>Lebensmittel</translation>
    </message>
    <message>
        <source>Dining &amp; Restaurants</source>
        <translation>Restaurants &amp; Cafés</translation>
    </message>
    <message>
        <source>Personal Care</source>
        <translation>Körperpflege</translation>
    </message>
    <message>
        <source>Pets</source>
        <translation>Haustiere</translation>
    </message>
    <message>
        <source>Subscriptions</source>
        <translation>Abonnements</translation>
    </message>
    <message>
        <source>Gifts</source>
        <translation>Geschenke</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Freizeit</translation>
    </message>
    <message>
        <source>Streaming</source>
        <translation>Streaming</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Veranstaltungen</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>Anschaffungen</translation>
    </message>
    <message>
        <source>Clothing</source>
        <translation>Kleidung</translation>
    </message>
    <message>
        <source>Electronics</source>
        <translation>Elektronik</translation>
    </message>
    <message>
        <source>Household</source>
        <translation>Haushalt</translation>
    </message>
    <message>
        <source>Insurance</source>
        <translation>Versicherungen</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Krankenversicherung</translation>
    </message>
    <message>
        <source>Life</source>
        <translation>Lebensversicherung</translation>
    </message>
    <message>
        <source>Home/Renters</source>
        <translation>Gebäude/Hausrat</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Fees &amp; Charges</source>
        <translation>Gebühren</translation>
    </message>
    <message>
        <source>Bank Fees</source>
        <translation>Bankgebühren</translation>
    </message>
    <message>
        <source>ATM Fees</source>
        <translation>Geldautomatengebühren</translation>
    </message>
    <message>
        <source>Late Fees</source>
        <translation>Mahngebühren</translation>
    </message>
    <message>
        <source>Salary / Wages</source>
        <translation>Gehalt / Lohn</translation>
    </message>
    <message>
        <source>Interest Income</source>
        <translation>Zinserträge</translation>
    </message>
    <message>
        <source>Dividend Income</source>
        <translation>Dividenden</translation>
    </message>
    <message>
        <source>Rental Income</source>
        <translation>Mieteinnahmen</translation>
    </message>
    <message>
        <source>Freelance / Consulting</source>
        <translation>Selbstständige Tätigkeit</translation>
    </message>
    <message>
        <source>Refunds</source>
        <translation>Erstattungen</translation>
    </message>
    <message>
        <source>Gifts Received</source>
        <translation>Geldgeschenke</translation>
    </message>
    <message>
        <source>Other Income</source>
        <translation>Sonstige Einnahmen</translation>
    </message>
</context>
<context>
    <name>CategoryTreeModel</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Tax Code</source>
        <translation>Steuercode</translation>
    </message>
</context>
<context>
    <name>ComparisonBar</name>
    <message>
        <source>This Year vs Last Year</source>
        <translation>Dieses mit letztem Jahr</translation>
    </message>
    <message>
        <source>Last Year vs Year Before</source>
        <translation>Letztes mit vorletztem Jahr</translation>
    </message>
    <message>
        <source>This Quarter vs Last Quarter</source>
        <translation>Dieses mit letztem Quartal</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene Zeiträume</translation>
    </message>
    <message>
        <source>Compare:</source>
        <translation>Vergleichen:</translation>
    </message>
    <message>
        <source>P1:</source>
        <translation>Z1:</translation>
    </message>
    <message>
        <source>P2:</source>
        <translation>Z2:</translation>
    </message>
    <message>
        <source>P1: %1 – %2    P2: %3 – %4</source>
        <translation>Z1: %1 – %2    Z2: %3 – %4</translation>
    </message>
    <message>
        <source>P1 from</source>
        <translation>Z1 von</translation>
    </message>
    <message>
        <source>P1 to</source>
        <translation>Z1 bis</translation>
    </message>
    <message>
        <source>P2 from</source>
        <translation>Z2 von</translation>
    </message>
    <message>
        <source>P2 to</source>
        <translation>Z2 bis</translation>
    </message>
</context>
<context>
    <name>CsvMappingForm</name>
    <message>
        <source>CSV Column Mapping:</source>
        <translation>CSV-Spaltenzuordnung:</translation>
    </message>
    <message>
        <source>First row is header</source>
        <translation>Erste Zeile ist Kopfzeile</translation>
    </message>
    <message>
        <source>Date column:</source>
        <translation>Datumsspalte:</translation>
    </message>
    <message>
        <source>Payee column:</source>
        <translation>Empfängerspalte:</translation>
    </message>
    <message>
        <source>Amount column:</source>
        <translation>Betragsspalte:</translation>
    </message>
    <message>
        <source>Memo column:</source>
        <translation>Notizspalte:</translation>
    </message>
    <message>
        <source>Category column:</source>
        <translation>Kategoriespalte:</translation>
    </message>
    <message>
        <source>Date format:</source>
        <translation>Datumsformat:</translation>
    </message>
    <message>
        <source>Auto-detect</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Col %1: %2</source>
        <translation>Sp. %1: %2</translation>
    </message>
    <message>
        <source>Col %1</source>
        <translation>Sp. %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>DateField</name>
    <message>
        <source>Open calendar (F4)</source>
        <translation>Kalender öffnen (F4)</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>You can also import transactions from a CSV file via File › Import.</source>
        <translation>Über Datei › Importieren können Sie Buchungen auch aus einer CSV-Datei übernehmen.</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Konto anlegen</translation>
    </message>
    <message>
        <source>Welcome to Kestrelwood Pursewell</source>
        <translation>Willkommen bei Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Create your first account to get started.</source>
        <translation>Legen Sie zum Einstieg Ihr erstes Konto an.</translation>
    </message>
</context>
<context>
    <name>ImportScreen</name>
    <message>
        <source>Import Transactions</source>
        <translation>Buchungen importieren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Konto:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>QIF</source>
        <translation>QIF</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Keine Datei ausgewählt</translation>
    </message>
    <message>
        <source>Select QIF File(s)</source>
        <translation>QIF-Dateien auswählen</translation>
    </message>
    <message>
        <source>QIF Files (*.qif)</source>
        <translation>QIF-Dateien (*.qif)</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n Datei ausgewählt</numerusform>
            <numerusform>%n Dateien ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Analyzing QIF file(s)...</source>
        <translation>QIF-Dateien werden analysiert...</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*)</source>
        <translation>CSV-Dateien (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>No target account</source>
        <translation>Kein Zielkonto</translation>
    </message>
    <message>
        <source>Pick an account to import into, or create one now.</source>
        <translation>Wählen Sie ein Konto für den Import aus oder legen Sie jetzt eines an.</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Import läuft...</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>ImportService</name>
    <message>
        <source>%1 (no account header)</source>
        <translation>%1 (ohne Kontoangabe)</translation>
    </message>
    <message>
        <source>Imported transaction</source>
        <translation>Importierte Buchung</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>Import failed.</source>
        <translation>Import fehlgeschlagen.</translation>
    </message>
    <message>
        <source>A database error stopped the import and all changes were rolled back. No transactions were added.</source>
        <translation>Ein Datenbankfehler hat den Import abgebrochen; alle Änderungen wurden zurückgenommen. Es wurden keine Buchungen hinzugefügt.</translation>
    </message>
    <message>
        <source>Import complete!</source>
        <translation>Import abgeschlossen!</translation>
    </message>
    <message numerus="yes">
        <source>%n transaction(s) imported</source>
        <translation>
            <numerusform>%n Buchung importiert</numerusform>
            <numerusform>%n Buchungen importiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n transfer(s) linked across accounts</source>
        <translation>
            <numerusform>%n Umbuchung zwischen Konten verknüpft</numerusform>
            <numerusform>%n Umbuchungen zwischen Konten verknüpft</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  (including %n linked to previously imported row(s))</source>
        <translation>
            <numerusform>  (davon %n mit einer früher importierten Buchung verknüpft)</numerusform>
            <numerusform>  (davon %n mit früher importierten Buchungen verknüpft)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate(s) skipped</source>
        <translation>
            <numerusform>%n Duplikat übersprungen</numerusform>
            <numerusform>%n Duplikate übersprungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unparseable)</source>
        <translation>
            <numerusform>%n Datensatz übersprungen (nicht lesbar)</numerusform>
            <numerusform>%n Datensätze übersprungen (nicht lesbar)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n metadata record(s) skipped</source>
        <translation>
            <numerusform>%n Metadatensatz übersprungen</numerusform>
            <numerusform>%n Metadatensätze übersprungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unmapped source account)</source>
        <translation>
            <numerusform>%n Datensatz übersprungen (Quellkonto nicht zugeordnet)</numerusform>
            <numerusform>%n Datensätze übersprungen (Quellkonto nicht zugeordnet)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (database error — see log)</source>
        <translation>
            <numerusform>%n Datensatz übersprungen (Datenbankfehler – siehe Protokoll)</numerusform>
            <numerusform>%n Datensätze übersprungen (Datenbankfehler – siehe Protokoll)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KestAccount::AccountScreen</name>
    <message>
        <source>Kestrelwood Account</source>
        <translation>Kestrelwood-Konto</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Data &amp; Privacy</source>
        <translation>Daten &amp; Datenschutz</translation>
    </message>
</context>
<context>
    <name>KestAccount::DevicesPage</name>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Registered Devices</source>
        <translation>Registrierte Geräte</translation>
    </message>
    <message>
        <source>Devices that have synced with your account.</source>
        <translation>Geräte, die mit Ihrem Kestrelwood-Konto synchronisiert wurden.</translation>
    </message>
    <message>
        <source>No devices registered.</source>
        <translation>Keine Geräte registriert.</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>Unbekanntes Gerät</translation>
    </message>
    <message>
        <source>  ·  v%1</source>
        <translation>  ·  v%1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Gerät entfernen</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>%1 entfernen?</translation>
    </message>
    <message>
        <source>Device removed.</source>
        <translation>Gerät entfernt.</translation>
    </message>
</context>
<context>
    <name>KestAccount::GroupPage</name>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>%1 of %2 seats used</source>
        <translation>%1 von %2 Plätzen belegt</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Mitglieder</translation>
    </message>
    <message>
        <source>No Group</source>
        <translation>Keine Gruppe</translation>
    </message>
    <message>
        <source>You&apos;re not part of a group. The group owner can invite you, or you can join with an invite code.</source>
        <translation>Sie gehören keiner Gruppe an. Der Eigentümer einer Gruppe kann Sie einladen, oder Sie treten mit einem Einladungscode bei.</translation>
    </message>
    <message>
        <source>Join with Invite Code</source>
        <translation>Mit Einladungscode beitreten</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Eigentümer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Pending Invitations</source>
        <translation>Offene Einladungen</translation>
    </message>
    <message>
        <source>Invite code: %1</source>
        <translation>Einladungscode: %1</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Invite Members</source>
        <translation>Mitglieder einladen</translation>
    </message>
    <message>
        <source>Invite by Email</source>
        <translation>Per E-Mail einladen</translation>
    </message>
    <message>
        <source>Generate Invite Code</source>
        <translation>Einladungscode erzeugen</translation>
    </message>
    <message>
        <source>Leave Group</source>
        <translation>Gruppe verlassen</translation>
    </message>
    <message>
        <source>Join Group</source>
        <translation>Gruppe beitreten</translation>
    </message>
    <message>
        <source>Enter invite code:</source>
        <translation>Einladungscode eingeben:</translation>
    </message>
    <message>
        <source>Invalid or expired invite code.</source>
        <translation>Ungültiger oder abgelaufener Einladungscode.</translation>
    </message>
    <message>
        <source>Joined group.</source>
        <translation>Sie sind der Gruppe beigetreten.</translation>
    </message>
    <message>
        <source>Remove Member</source>
        <translation>Mitglied entfernen</translation>
    </message>
    <message>
        <source>Remove %1 from the group?</source>
        <translation>%1 aus der Gruppe entfernen?</translation>
    </message>
    <message>
        <source>%1 removed.</source>
        <translation>%1 wurde entfernt.</translation>
    </message>
    <message>
        <source>Invitation revoked.</source>
        <translation>Einladung widerrufen.</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>E-Mail-Adresse:</translation>
    </message>
    <message>
        <source>Failed to send invitation.</source>
        <translation>Die Einladung konnte nicht gesendet werden.</translation>
    </message>
    <message>
        <source>Invitation sent.</source>
        <translation>Einladung gesendet.</translation>
    </message>
    <message>
        <source>Failed to generate code.</source>
        <translation>Der Code konnte nicht erzeugt werden.</translation>
    </message>
    <message>
        <source>Invite Code</source>
        <translation>Einladungscode</translation>
    </message>
    <message>
        <source>Share this code with the person you want to invite:

%1</source>
        <translation>Geben Sie diesen Code der Person, die Sie einladen möchten:

%1</translation>
    </message>
    <message>
        <source>Leave this group? You will lose access to shared data.</source>
        <translation>Diese Gruppe verlassen? Sie verlieren den Zugriff auf freigegebene Daten.</translation>
    </message>
    <message>
        <source>Left group.</source>
        <translation>Sie haben die Gruppe verlassen.</translation>
    </message>
</context>
<context>
    <name>KestAccount::PrivacyPage</name>
    <message>
        <source>Data &amp; Privacy</source>
        <translation>Daten &amp; Datenschutz</translation>
    </message>
    <message>
        <source>Danger Zone</source>
        <translation>Gefahrenbereich</translation>
    </message>
    <message>
        <source>Permanently delete your account. This cannot be undone after 30 days.</source>
        <translation>Ihr Kestrelwood-Konto endgültig löschen. Nach 30 Tagen lässt sich das nicht mehr rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete Account</source>
        <translation>Kestrelwood-Konto löschen</translation>
    </message>
    <message>
        <source>You are the group owner. Transfer ownership or remove all members before deleting your account.</source>
        <translation>Sie sind Eigentümer der Gruppe. Übergeben Sie die Gruppe an ein anderes Mitglied oder entfernen Sie alle Mitglieder, bevor Sie Ihr Kestrelwood-Konto löschen.</translation>
    </message>
    <message>
        <source>This will schedule your account for permanent deletion after 30 days.

Type DELETE to confirm:</source>
        <translation>Ihr Kestrelwood-Konto wird zur endgültigen Löschung nach 30 Tagen vorgemerkt.

Geben Sie zur Bestätigung DELETE ein:</translation>
    </message>
    <message>
        <source>Failed to delete account.</source>
        <translation>Das Kestrelwood-Konto konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Account Scheduled for Deletion</source>
        <translation>Kestrelwood-Konto zur Löschung vorgemerkt</translation>
    </message>
    <message>
        <source>Your account will be permanently deleted in 30 days. You can recover it by signing in before then.</source>
        <translation>Ihr Kestrelwood-Konto wird in 30 Tagen endgültig gelöscht. Wenn Sie sich vorher wieder anmelden, bleibt es erhalten.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ProfilePage</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Personal Information</source>
        <translation>Persönliche Angaben</translation>
    </message>
    <message>
        <source>Edit Display Name</source>
        <translation>Anzeigename ändern</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Change your account password.</source>
        <translation>Das Passwort Ihres Kestrelwood-Kontos ändern.</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(nicht angegeben)</translation>
    </message>
    <message>
        <source>Display name:</source>
        <translation>Anzeigename:</translation>
    </message>
    <message>
        <source>Failed to update profile.</source>
        <translation>Das Profil konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Display name updated.</source>
        <translation>Anzeigename geändert.</translation>
    </message>
    <message>
        <source>Current password:</source>
        <translation>Aktuelles Passwort:</translation>
    </message>
    <message>
        <source>New password (min 8 characters):</source>
        <translation>Neues Passwort (mindestens 8 Zeichen):</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Das Passwort muss mindestens 8 Zeichen lang sein.</translation>
    </message>
    <message>
        <source>Confirm new password:</source>
        <translation>Neues Passwort wiederholen:</translation>
    </message>
    <message>
        <source>Passwords do not match.</source>
        <translation>Die Passwörter stimmen nicht überein.</translation>
    </message>
    <message>
        <source>Password changed.</source>
        <translation>Passwort geändert.</translation>
    </message>
    <message>
        <source>Failed to change password.</source>
        <translation>Das Passwort konnte nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>KestAccount::RelativeTime</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Active now</source>
        <translation>Gerade aktiv</translation>
    </message>
    <message>
        <source>%1m ago</source>
        <translation>vor %1 Min.</translation>
    </message>
    <message>
        <source>%1h ago</source>
        <translation>vor %1 Std.</translation>
    </message>
    <message>
        <source>%1d ago</source>
        <translation>vor %1 Tg.</translation>
    </message>
</context>
<context>
    <name>KestAccount::SecurityPage</name>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Active Sessions</source>
        <translation>Aktive Sitzungen</translation>
    </message>
    <message>
        <source>Sessions currently signed in to your account.</source>
        <translation>Sitzungen, die zurzeit bei Ihrem Kestrelwood-Konto angemeldet sind.</translation>
    </message>
    <message>
        <source>No active sessions.</source>
        <translation>Keine aktiven Sitzungen.</translation>
    </message>
    <message>
        <source>Unknown client</source>
        <translation>Unbekanntes Programm</translation>
    </message>
    <message>
        <source>This session</source>
        <translation>Diese Sitzung</translation>
    </message>
    <message>
        <source>  ·  %1</source>
        <translation>  ·  %1</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Session revoked.</source>
        <translation>Sitzung widerrufen.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ShareMembersDialog</name>
    <message>
        <source>Could not share with %1.</source>
        <translation>Die Freigabe für %1 ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Could not remove %1.</source>
        <translation>%1 konnte nicht entfernt werden.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ShareWords</name>
    <message>
        <source>People with access</source>
        <translation>Personen mit Zugriff</translation>
    </message>
    <message>
        <source>Add people</source>
        <translation>Personen hinzufügen</translation>
    </message>
    <message>
        <source>Not shared with anyone yet.</source>
        <translation>Noch für niemanden freigegeben.</translation>
    </message>
    <message>
        <source>You don&apos;t have a family group yet.</source>
        <translation>Sie haben noch keine Familiengruppe.</translation>
    </message>
    <message>
        <source>All group members already have access</source>
        <translation>Alle Gruppenmitglieder haben bereits Zugriff</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Freigeben</translation>
    </message>
    <message>
        <source>Remove access</source>
        <translation>Zugriff entziehen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Remove access?</source>
        <translation>Zugriff entziehen?</translation>
    </message>
    <message>
        <source>%1 will no longer have access. Continue?</source>
        <translation>%1 hat dann keinen Zugriff mehr. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>KestUpdate::Flow</name>
    <message>
        <source>No release notes available for %1 %2</source>
        <translation>Keine Versionshinweise für %1 %2 verfügbar</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Updates werden gesucht…</translation>
    </message>
    <message>
        <source>%1 is up to date (version %2)</source>
        <translation>%1 ist auf dem neuesten Stand (Version %2)</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Suche nach Updates fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Versionshinweise werden geladen…</translation>
    </message>
</context>
<context>
    <name>KestUpdate::NotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
</context>
<context>
    <name>KestUpdate::UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>A new version of %1 is available.</source>
        <translation>Eine neue Version von %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>You have version %1. The latest version is %2.</source>
        <translation>Sie haben Version %1. Die neueste Version ist %2.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Versionshinweise werden geladen…</translation>
    </message>
    <message>
        <source>*Release notes are not available for this version.*</source>
        <translation>*Für diese Version sind keine Versionshinweise verfügbar.*</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>KestUpdate::WhatsNewDialog</name>
    <message>
        <source>What&apos;s New in %1 %2</source>
        <translation>Neu in %1 %2</translation>
    </message>
    <message>
        <source>What&apos;s new in %1 %2</source>
        <translation>Neu in %1 %2</translation>
    </message>
    <message>
        <source>You are running version %1</source>
        <translation>Sie verwenden Version %1</translation>
    </message>
    <message>
        <source>Download %1</source>
        <translation>%1 herunterladen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Kestrelwood Pursewell</source>
        <translation>Kestrelwood Pursewell</translation>
    </message>
    <message numerus="yes">
        <source>Auto-posted %n recurring transaction(s)</source>
        <translation>
            <numerusform>%n wiederkehrende Buchung automatisch gebucht</numerusform>
            <numerusform>%n wiederkehrende Buchungen automatisch gebucht</numerusform>
        </translation>
    </message>
    <message>
        <source>No accounts</source>
        <translation>Keine Konten</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Summe: %1</translation>
    </message>
    <message>
        <source>New Account...</source>
        <translation>Neues Konto...</translation>
    </message>
    <message>
        <source>Edit &quot;%1&quot;...</source>
        <translation>„%1“ bearbeiten...</translation>
    </message>
    <message>
        <source>Reconcile...</source>
        <translation>Abgleichen...</translation>
    </message>
    <message>
        <source>Reconciliation History...</source>
        <translation>Abgleichverlauf...</translation>
    </message>
    <message>
        <source>Rename Payees...</source>
        <translation>Empfänger umbenennen...</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>Select an account first</source>
        <translation>Bitte zuerst ein Konto auswählen</translation>
    </message>
    <message>
        <source>Delete Account</source>
        <translation>Konto löschen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;?

All transactions, recurring entries, and reconciliation history for this account will be removed. You can restore it from Preferences → Data &amp; Sync.</source>
        <translation>„%1“ löschen?

Alle Buchungen, alle wiederkehrenden Buchungen und der Abgleichverlauf dieses Kontos werden entfernt. Sie können das Konto unter Einstellungen → Daten &amp; Sync wiederherstellen.</translation>
    </message>
    <message>
        <source>Sample data is already loaded.</source>
        <translation>Die Beispieldaten sind bereits geladen.</translation>
    </message>
    <message>
        <source>Sample data loaded</source>
        <translation>Beispieldaten geladen</translation>
    </message>
    <message>
        <source>No sample data to clear.</source>
        <translation>Keine Beispieldaten zum Entfernen vorhanden.</translation>
    </message>
    <message>
        <source>Sample data cleared</source>
        <translation>Beispieldaten entfernt</translation>
    </message>
    <message>
        <source>Sample Data</source>
        <translation>Beispieldaten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Transaction</source>
        <translation>&amp;Neue Buchung</translation>
    </message>
    <message>
        <source>New &amp;Account</source>
        <translation>Neues &amp;Konto</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Kestrelwood &amp;Account...</source>
        <translation>K&amp;estrelwood-Konto...</translation>
    </message>
    <message>
        <source>Sign &amp;Out</source>
        <translation>Ab&amp;melden</translation>
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
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Konto</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Reconcile...</source>
        <translation>&amp;Abgleichen...</translation>
    </message>
    <message>
        <source>Reconciliation &amp;History...</source>
        <translation>Abgleich&amp;verlauf...</translation>
    </message>
    <message>
        <source>Rename &amp;Payees...</source>
        <translation>&amp;Empfänger umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Berichte</translation>
    </message>
    <message>
        <source>Re&amp;curring Transactions</source>
        <translation>&amp;Wiederkehrende Buchungen</translation>
    </message>
    <message>
        <source>C&amp;ategories</source>
        <translation>&amp;Kategorien</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Kestrelwood Pursewell</source>
        <translation>Ü&amp;ber Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Send &amp;Feedback...</source>
        <translation>&amp;Feedback senden...</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Load &amp;Sample Data</source>
        <translation>Beispieldaten &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Clear Sample Data</source>
        <translation>Beispieldaten &amp;entfernen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A digital pursewell register for tracking household finances.</source>
        <translation>Ein digitales Pursewell-Kontobuch für die Haushaltsfinanzen.</translation>
    </message>
    <message>
        <source>Made and owned by Kestrelwood.</source>
        <translation>Entwickelt von Kestrelwood. Alle Rechte bei Kestrelwood.</translation>
    </message>
    <message>
        <source>This application uses the Qt framework under the LGPL v3 license.</source>
        <translation>Diese Anwendung verwendet das Qt-Framework unter der Lizenz LGPL v3.</translation>
    </message>
    <message>
        <source>Its source code is available at %1</source>
        <translation>Quellcode: %1</translation>
    </message>
    <message>
        <source>About Kestrelwood Pursewell</source>
        <translation>Über Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Register&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Save transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Insert new transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Delete current transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab / Shift+Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Next / previous field&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;&apos; (apostrophe)&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Copy value from field above&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Date Field&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;t&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Today&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;+ / -&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Next / previous day&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;m / h&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of month&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;y / r&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of year&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;w / k&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of week&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;General&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;New transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;New account&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Reconcile account&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%7&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Search transactions&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%8&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Import&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%9&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Reports&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Recurring transactions&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%11&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Categories&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Accounts&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%12 &amp;ndash; %13&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Switch to account 1&amp;ndash;9&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%14&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Switch to account 10&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</source>
        <translation>&lt;h3&gt;Kontobuch&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Buchung speichern&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Neue Buchung einfügen&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Aktuelle Buchung löschen&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab / Shift+Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Nächstes / vorheriges Feld&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;&apos; (Apostroph)&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Wert aus dem Feld darüber übernehmen&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Datumsfeld&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;t&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Heute&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;+ / -&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Nächster / vorheriger Tag&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;m / h&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Erster / letzter Tag des Monats&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;y / r&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Erster / letzter Tag des Jahres&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;w / k&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Erster / letzter Tag der Woche&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Allgemein&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Neue Buchung&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Neues Konto&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Konto abgleichen&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%7&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Buchungen suchen&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%8&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Importieren&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%9&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Berichte&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Wiederkehrende Buchungen&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%11&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Kategorien&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Konten&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%12 &amp;ndash; %13&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Zu Konto 1&amp;ndash;9 wechseln&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%14&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Zu Konto 10 wechseln&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Signed in successfully</source>
        <translation>Erfolgreich angemeldet</translation>
    </message>
    <message>
        <source>Sign-in failed: %1</source>
        <translation>Anmeldung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Sync complete</source>
        <translation>Synchronisierung abgeschlossen</translation>
    </message>
    <message>
        <source>Sync failed: %1</source>
        <translation>Synchronisierung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Manage your account</source>
        <translation>Ihr Kestrelwood-Konto verwalten</translation>
    </message>
    <message>
        <source>Sign in or sign up</source>
        <translation>Anmelden oder registrieren</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>Nicht angemeldet</translation>
    </message>
    <message>
        <source>Reconcile — %1</source>
        <translation>Abgleich – %1</translation>
    </message>
    <message>
        <source>Reconciliation History</source>
        <translation>Abgleichverlauf</translation>
    </message>
    <message>
        <source>Recurring Transactions</source>
        <translation>Wiederkehrende Buchungen</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Search Transactions</source>
        <translation>Buchungen suchen</translation>
    </message>
    <message>
        <source>Import Transactions</source>
        <translation>Buchungen importieren</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Payee Management</source>
        <translation>Empfänger verwalten</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Freigeben...</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Share...</source>
        <translation>&amp;Freigeben...</translation>
    </message>
    <message>
        <source>What&apos;s &amp;New...</source>
        <translation>&amp;Neuigkeiten...</translation>
    </message>
    <message>
        <source>Check for &amp;Updates...</source>
        <translation>Nach &amp;Updates suchen...</translation>
    </message>
    <message>
        <source>Kestrelwood Account</source>
        <translation>Kestrelwood-Konto</translation>
    </message>
    <message>
        <source>Share Account</source>
        <translation>Konto freigeben</translation>
    </message>
    <message>
        <source>Sharing: %1</source>
        <translation>Freigabe: %1</translation>
    </message>
    <message>
        <source>Share this account with members of your Kestrelwood family group. They&apos;ll see the same register, balances, and reconciliation history on their devices.</source>
        <translation>Geben Sie dieses Konto für Mitglieder Ihrer Kestrelwood-Familiengruppe frei. Auf deren Geräten erscheinen dasselbe Kontobuch, dieselben Salden und derselbe Abgleichverlauf.</translation>
    </message>
    <message>
        <source>Shared with</source>
        <translation>Freigegeben für</translation>
    </message>
    <message>
        <source>Not shared with anyone yet.</source>
        <translation>Noch für niemanden freigegeben.</translation>
    </message>
    <message>
        <source>You don&apos;t have a family group yet.</source>
        <translation>Sie haben noch keine Familiengruppe.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Freigeben</translation>
    </message>
    <message>
        <source>Remove access</source>
        <translation>Zugriff entziehen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Remove Share</source>
        <translation>Freigabe aufheben</translation>
    </message>
    <message>
        <source>Remove %1&apos;s access to this account?</source>
        <translation>%1 den Zugriff auf dieses Konto entziehen?</translation>
    </message>
    <message>
        <source>Sign In Required</source>
        <translation>Anmeldung erforderlich</translation>
    </message>
    <message>
        <source>Sharing requires a Kestrelwood account.</source>
        <translation>Zum Freigeben benötigen Sie ein Kestrelwood-Konto.</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Mehr erfahren</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>PayeeMemoEditor</name>
    <message>
        <source>Memo</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>PayeeScreen</name>
    <message>
        <source>Payee Management</source>
        <translation>Empfänger verwalten</translation>
    </message>
    <message>
        <source>Rename to:</source>
        <translation>Umbenennen in:</translation>
    </message>
    <message>
        <source>Rename Selected</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Merge Selected</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Rename Complete</source>
        <translation>Empfänger umbenannt</translation>
    </message>
    <message numerus="yes">
        <source>Renamed %n transaction(s).</source>
        <translation>
            <numerusform>%n Buchung geändert.</numerusform>
            <numerusform>%n Buchungen geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Select 2 or more payees to merge.</source>
        <translation>Bitte mindestens 2 Empfänger zum Zusammenführen auswählen.</translation>
    </message>
    <message>
        <source>Merge Complete</source>
        <translation>Empfänger zusammengeführt</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n transaction(s).</source>
        <translation>
            <numerusform>%n Buchung geändert.</numerusform>
            <numerusform>%n Buchungen geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Merge Payees</source>
        <translation>Empfänger zusammenführen</translation>
    </message>
    <message>
        <source>Merge %1 payees into &quot;%2&quot;?</source>
        <translation>%1 Empfänger zu „%2“ zusammenführen?</translation>
    </message>
    <message>
        <source>Payees</source>
        <translation>Empfänger</translation>
    </message>
</context>
<context>
    <name>QifMappingForm</name>
    <message>
        <source>QIF source accounts:</source>
        <translation>QIF-Quellkonten:</translation>
    </message>
    <message>
        <source>Choose where each Quicken account should be imported. Accounts mapped across the selected files will have their transfers linked automatically.</source>
        <translation>Wählen Sie für jedes Quicken-Konto das Zielkonto aus. Umbuchungen zwischen den zugeordneten Konten aller ausgewählten Dateien werden automatisch verknüpft.</translation>
    </message>
    <message>
        <source>— Create new account &quot;%1&quot; —</source>
        <translation>— Neues Konto „%1“ anlegen —</translation>
    </message>
    <message>
        <source>— Skip these transactions —</source>
        <translation>— Diese Buchungen überspringen —</translation>
    </message>
</context>
<context>
    <name>ReconciliationHistoryScreen</name>
    <message>
        <source>Reconciliation History</source>
        <translation>Abgleichverlauf</translation>
    </message>
    <message>
        <source>No reconciliations yet. Reconcile your account from the register to see the history here.</source>
        <translation>Noch keine Abgleiche. Sobald Sie das Konto im Kontobuch abgleichen, erscheint hier der Verlauf.</translation>
    </message>
    <message>
        <source>Past reconciliations for this account.</source>
        <translation>Bisherige Abgleiche dieses Kontos.</translation>
    </message>
    <message>
        <source>Statement Date</source>
        <translation>Auszugsdatum</translation>
    </message>
    <message>
        <source>Statement Balance</source>
        <translation>Auszugssaldo</translation>
    </message>
    <message>
        <source>Reconciled Balance</source>
        <translation>Abgeglichener Saldo</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Reconciliation History — %1</source>
        <translation>Abgleichverlauf – %1</translation>
    </message>
</context>
<context>
    <name>ReconciliationModel</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Clr</source>
        <translation>St.</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Angehakt</translation>
    </message>
    <message>
        <source>Not ticked</source>
        <translation>Nicht angehakt</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Unbestätigt</translation>
    </message>
</context>
<context>
    <name>ReconciliationScreen</name>
    <message>
        <source>Reconcile Account</source>
        <translation>Konto abgleichen</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>Finish Reconciliation</source>
        <translation>Abgleich abschließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Statement Date:</source>
        <translation>Auszugsdatum:</translation>
    </message>
    <message>
        <source>Statement Balance:</source>
        <translation>Auszugssaldo:</translation>
    </message>
    <message>
        <source>Add Transaction</source>
        <translation>Neue Buchung</translation>
    </message>
    <message>
        <source>Add a transaction (%1)</source>
        <translation>Neue Buchung erfassen (%1)</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit selected transaction (F2)</source>
        <translation>Ausgewählte Buchung bearbeiten (F2)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete selected transaction (Del)</source>
        <translation>Ausgewählte Buchung löschen (Entf)</translation>
    </message>
    <message>
        <source>Reconciliation Complete</source>
        <translation>Abgleich abgeschlossen</translation>
    </message>
    <message>
        <source>Account reconciled successfully.</source>
        <translation>Das Konto wurde erfolgreich abgeglichen.</translation>
    </message>
    <message>
        <source>Delete Transaction</source>
        <translation>Buchung löschen</translation>
    </message>
    <message>
        <source>Delete the transaction for %1?</source>
        <translation>Buchung „%1“ löschen?</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Buchungen</translation>
    </message>
</context>
<context>
    <name>ReconciliationSummary</name>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Previous Balance</source>
        <translation>Vorheriger Saldo</translation>
    </message>
    <message>
        <source>Cleared Deposits</source>
        <translation>Bestätigte Einzahlungen</translation>
    </message>
    <message>
        <source>Cleared Withdrawals</source>
        <translation>Bestätigte Auszahlungen</translation>
    </message>
    <message>
        <source>Cleared Balance</source>
        <translation>Bestätigter Saldo</translation>
    </message>
    <message>
        <source>Statement Balance</source>
        <translation>Auszugssaldo</translation>
    </message>
</context>
<context>
    <name>RecurringFormDialog</name>
    <message>
        <source>New Recurring Transaction</source>
        <translation>Neue wiederkehrende Buchung</translation>
    </message>
    <message>
        <source>Edit Recurring Transaction</source>
        <translation>Wiederkehrende Buchung bearbeiten</translation>
    </message>
    <message>
        <source>Memorize Transaction</source>
        <translation>Buchung merken</translation>
    </message>
    <message>
        <source>Start typing to search payees...</source>
        <translation>Tippen, um Empfänger zu suchen...</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Bi-weekly</source>
        <translation>Alle 2 Wochen</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Quarterly</source>
        <translation>Vierteljährlich</translation>
    </message>
    <message>
        <source>Semi-annual</source>
        <translation>Halbjährlich</translation>
    </message>
    <message>
        <source>Annual</source>
        <translation>Jährlich</translation>
    </message>
    <message>
        <source>Has end date</source>
        <translation>Mit Enddatum</translation>
    </message>
    <message>
        <source>Auto-post when due</source>
        <translation>Bei Fälligkeit automatisch buchen</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Einzahlung</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Empfänger:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Betrag:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Turnus:</translation>
    </message>
    <message>
        <source>Start Date:</source>
        <translation>Startdatum:</translation>
    </message>
    <message>
        <source>End Date:</source>
        <translation>Enddatum:</translation>
    </message>
</context>
<context>
    <name>RecurringModel</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Turnus</translation>
    </message>
    <message>
        <source>Next Due</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Autom.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>RecurringScreen</name>
    <message>
        <source>Recurring Transactions</source>
        <translation>Wiederkehrende Buchungen</translation>
    </message>
    <message>
        <source>Confirm All Due</source>
        <translation>Alle fälligen buchen</translation>
    </message>
    <message>
        <source>New Recurring</source>
        <translation>Neu anlegen</translation>
    </message>
    <message>
        <source>(%1 due)</source>
        <translation>(%1 fällig)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete recurring &quot;%1&quot;?</source>
        <translation>Wiederkehrende Buchung „%1“ löschen?</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Confirm</source>
        <translation>B&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Über&amp;springen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>RegisterColumnLayout</name>
    <message>
        <source>Show columns</source>
        <translation>Spalten anzeigen</translation>
    </message>
    <message>
        <source>Reset register layout</source>
        <translation>Kontobuchansicht zurücksetzen</translation>
    </message>
</context>
<context>
    <name>RegisterHeader</name>
    <message>
        <source>Reconcile</source>
        <translation>Abgleichen</translation>
    </message>
</context>
<context>
    <name>RegisterModel</name>
    <message>
        <source>—Split—</source>
        <translation>—Aufgeteilt—</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Chk #</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Einzahlung</translation>
    </message>
    <message>
        <source>Clr</source>
        <translation>St.</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Payee / Memo</source>
        <translation>Empfänger / Notiz</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Abgeglichen</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Unbestätigt</translation>
    </message>
    <message>
        <source>New transaction, %1</source>
        <translation>Neue Buchung, %1</translation>
    </message>
    <message>
        <source>New transaction, %1: %2</source>
        <translation>Neue Buchung, %1: %2</translation>
    </message>
    <message>
        <source>Check number</source>
        <translation>Schecknummer</translation>
    </message>
</context>
<context>
    <name>RegisterScreen</name>
    <message>
        <source>Payee is required</source>
        <translation>Bitte einen Empfänger eingeben</translation>
    </message>
    <message>
        <source>Enter a payment or deposit amount</source>
        <translation>Bitte einen Betrag als Zahlung oder Einzahlung eingeben</translation>
    </message>
    <message>
        <source>Transfer account not found</source>
        <translation>Konto für die Umbuchung nicht gefunden</translation>
    </message>
    <message>
        <source>Transfers require both accounts to use the same currency</source>
        <translation>Umbuchungen sind nur zwischen Konten gleicher Währung möglich</translation>
    </message>
    <message>
        <source>Transfer to %1</source>
        <translation>Umbuchung auf %1</translation>
    </message>
    <message>
        <source>Transfer from %1</source>
        <translation>Umbuchung von %1</translation>
    </message>
    <message>
        <source>%1: save  |  Enter: next  |  %2: delete  |  %3: memorize  |  &apos;: copy above</source>
        <translation>%1: speichern  |  Enter: weiter  |  %2: löschen  |  %3: merken  |  &apos;: von oben</translation>
    </message>
    <message>
        <source>Fields cleared</source>
        <translation>Felder geleert</translation>
    </message>
    <message>
        <source>Cannot memorize: source transaction has an invalid date</source>
        <translation>Nicht gemerkt: Das Datum der Buchung ist ungültig</translation>
    </message>
    <message>
        <source>Transaction memorized as recurring</source>
        <translation>Buchung als wiederkehrend gemerkt</translation>
    </message>
    <message>
        <source>&amp;Insert New</source>
        <translation>Zeile &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;New Transaction...</source>
        <translation>&amp;Neue Buchung...</translation>
    </message>
    <message>
        <source>Show &amp;Details...</source>
        <translation>&amp;Details anzeigen...</translation>
    </message>
    <message>
        <source>Edit &amp;Splits...</source>
        <translation>&amp;Aufteilung bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Edit in Dialog...</source>
        <translation>&amp;Im Dialog bearbeiten...</translation>
    </message>
    <message>
        <source>Mark &amp;Uncleared</source>
        <translation>Als &amp;unbestätigt markieren</translation>
    </message>
    <message>
        <source>Mark &amp;Cleared</source>
        <translation>Als &amp;bestätigt markieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete Transaction</source>
        <translation>Buchung löschen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; for %2?</source>
        <translation>Buchung „%1“ über %2 löschen?</translation>
    </message>
    <message>
        <source>Delete transfer &quot;%1&quot; for %2?

Both sides of the transfer will be deleted.</source>
        <translation>„%1“ über %2 löschen?

Beide Seiten der Umbuchung werden gelöscht.</translation>
    </message>
</context>
<context>
    <name>ReportFill</name>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
</context>
<context>
    <name>ReportsScreen</name>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>Last Month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>This Quarter</source>
        <translation>Dieses Quartal</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Letztes Quartal</translation>
    </message>
    <message>
        <source>This Year</source>
        <translation>Dieses Jahr</translation>
    </message>
    <message>
        <source>Last Year</source>
        <translation>Letztes Jahr</translation>
    </message>
    <message>
        <source>Last 30 Days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Last 90 Days</source>
        <translation>Letzte 90 Tage</translation>
    </message>
    <message>
        <source>Last 12 Months</source>
        <translation>Letzte 12 Monate</translation>
    </message>
    <message>
        <source>All Time</source>
        <translation>Gesamter Zeitraum</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigener Zeitraum</translation>
    </message>
    <message>
        <source>Period:</source>
        <translation>Zeitraum:</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV-Export</translation>
    </message>
    <message>
        <source>Category Spending</source>
        <translation>Ausgaben je Kategorie</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Payee Summary</source>
        <translation>Summe je Empfänger</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Tax Report</source>
        <translation>Steuerbericht</translation>
    </message>
    <message>
        <source>Tax Code</source>
        <translation>Steuercode</translation>
    </message>
    <message>
        <source>Income vs Expenses</source>
        <translation>Einnahmen und Ausgaben</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Einnahmen</translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Geldfluss</translation>
    </message>
    <message>
        <source>Inflows</source>
        <translation>Zuflüsse</translation>
    </message>
    <message>
        <source>Outflows</source>
        <translation>Abflüsse</translation>
    </message>
    <message>
        <source>Year-over-Year</source>
        <translation>Jahresvergleich</translation>
    </message>
    <message>
        <source>Period 1</source>
        <translation>Zeitraum 1</translation>
    </message>
    <message>
        <source>Period 2</source>
        <translation>Zeitraum 2</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Account Summary</source>
        <translation>Summe je Konto</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Unbestätigt</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Buchungen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>All Accounts</source>
        <translation>Alle Konten</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
</context>
<context>
    <name>SampleDataService</name>
    <message>
        <source>Main Checking</source>
        <translation>Girokonto</translation>
    </message>
    <message>
        <source>Riverbend Credit Union</source>
        <translation>Riverbend Credit Union</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Sparkonto</translation>
    </message>
    <message>
        <source>Visa Rewards</source>
        <translation>Visa-Bonuskarte</translation>
    </message>
    <message>
        <source>Summit Bank</source>
        <translation>Summit Bank</translation>
    </message>
    <message>
        <source>Brightpath Inc</source>
        <translation>Brightpath Inc</translation>
    </message>
    <message>
        <source>Biweekly paycheck</source>
        <translation>Gehalt, alle 2 Wochen</translation>
    </message>
    <message>
        <source>Pinecrest Apartments</source>
        <translation>Pinecrest Apartments</translation>
    </message>
    <message>
        <source>February rent</source>
        <translation>Miete Februar</translation>
    </message>
    <message>
        <source>March rent</source>
        <translation>Miete März</translation>
    </message>
    <message>
        <source>Greenleaf Market</source>
        <translation>Greenleaf Market</translation>
    </message>
    <message>
        <source>Weekly groceries</source>
        <translation>Wocheneinkauf</translation>
    </message>
    <message>
        <source>Hilltop Gas</source>
        <translation>Hilltop Gas</translation>
    </message>
    <message>
        <source>Fill up</source>
        <translation>Tankfüllung</translation>
    </message>
    <message>
        <source>Lakeside Utilities</source>
        <translation>Lakeside Utilities</translation>
    </message>
    <message>
        <source>Electric bill</source>
        <translation>Stromrechnung</translation>
    </message>
    <message>
        <source>Water bill</source>
        <translation>Wasserrechnung</translation>
    </message>
    <message>
        <source>Streamline TV</source>
        <translation>Streamline TV</translation>
    </message>
    <message>
        <source>Monthly streaming</source>
        <translation>Streaming-Abo</translation>
    </message>
    <message>
        <source>Maplewood Diner</source>
        <translation>Maplewood Diner</translation>
    </message>
    <message>
        <source>Dinner out</source>
        <translation>Abendessen</translation>
    </message>
    <message>
        <source>Lunch</source>
        <translation>Mittagessen</translation>
    </message>
    <message>
        <source>Clearview Insurance</source>
        <translation>Clearview Insurance</translation>
    </message>
    <message>
        <source>Auto insurance</source>
        <translation>Kfz-Versicherung</translation>
    </message>
    <message>
        <source>Hope Community Church</source>
        <translation>Hope Community Church</translation>
    </message>
    <message>
        <source>Monthly donation</source>
        <translation>Monatliche Spende</translation>
    </message>
    <message>
        <source>NetConnect ISP</source>
        <translation>NetConnect ISP</translation>
    </message>
    <message>
        <source>Internet service</source>
        <translation>Internetanschluss</translation>
    </message>
    <message>
        <source>Ridgeline Pharmacy</source>
        <translation>Ridgeline Pharmacy</translation>
    </message>
    <message>
        <source>Prescriptions</source>
        <translation>Medikamente auf Rezept</translation>
    </message>
    <message>
        <source>Coffee &amp; pastry</source>
        <translation>Kaffee und Kuchen</translation>
    </message>
    <message>
        <source>Transfer to Savings</source>
        <translation>Umbuchung auf Sparkonto</translation>
    </message>
    <message>
        <source>Monthly savings</source>
        <translation>Monatliche Sparrate</translation>
    </message>
    <message>
        <source>Transfer from Checking</source>
        <translation>Umbuchung von Girokonto</translation>
    </message>
    <message>
        <source>Interest payment</source>
        <translation>Zinsgutschrift</translation>
    </message>
    <message>
        <source>Dash Delivery</source>
        <translation>Dash Delivery</translation>
    </message>
    <message>
        <source>Food delivery</source>
        <translation>Essenslieferung</translation>
    </message>
    <message>
        <source>Gadget World</source>
        <translation>Gadget World</translation>
    </message>
    <message>
        <source>Phone case</source>
        <translation>Handyhülle</translation>
    </message>
    <message>
        <source>CloudWatch Plus</source>
        <translation>CloudWatch Plus</translation>
    </message>
    <message>
        <source>Cloud storage plan</source>
        <translation>Cloud-Speicher</translation>
    </message>
    <message>
        <source>Payment - Thank You</source>
        <translation>Zahlung - Vielen Dank</translation>
    </message>
    <message>
        <source>Credit card payment</source>
        <translation>Ausgleich der Kreditkarte</translation>
    </message>
    <message>
        <source>Stellar Coffee</source>
        <translation>Stellar Coffee</translation>
    </message>
    <message>
        <source>Coffee beans</source>
        <translation>Kaffeebohnen</translation>
    </message>
    <message>
        <source>BookNest Online</source>
        <translation>BookNest Online</translation>
    </message>
    <message>
        <source>Programming books</source>
        <translation>Programmierbücher</translation>
    </message>
    <message>
        <source>TechVault</source>
        <translation>TechVault</translation>
    </message>
    <message>
        <source>USB hub</source>
        <translation>USB-Hub</translation>
    </message>
    <message>
        <source>Monthly rent</source>
        <translation>Monatsmiete</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Search payee, memo, check number...</source>
        <translation>Empfänger, Notiz, Schecknummer suchen...</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Zeitraum:</translation>
    </message>
    <message>
        <source>Cleared only</source>
        <translation>Nur bestätigte</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>All Accounts</source>
        <translation>Alle Konten</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Treffer</translation>
    </message>
</context>
<context>
    <name>SettingsAboutPage</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Kestrelwood Pursewell</source>
        <translation>Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A digital pursewell register for tracking household finances.</source>
        <translation>Ein digitales Pursewell-Kontobuch für die Haushaltsfinanzen.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Source code</source>
        <translation>Quellcode</translation>
    </message>
    <message>
        <source>This application uses the Qt framework under the LGPL v3 license.</source>
        <translation>Diese Anwendung verwendet das Qt-Framework unter der Lizenz LGPL v3.</translation>
    </message>
    <message>
        <source>Its icons are from the Material Icons font, under the Apache License 2.0.</source>
        <translation>Die Symbole stammen aus der Schrift Material Icons unter der Apache-Lizenz 2.0.</translation>
    </message>
</context>
<context>
    <name>SettingsBackupSection</name>
    <message>
        <source>ZIP Files (*.zip)</source>
        <translation>ZIP-Dateien (*.zip)</translation>
    </message>
    <message>
        <source>Export Backup</source>
        <translation>Sicherung exportieren</translation>
    </message>
    <message>
        <source>Import Backup</source>
        <translation>Sicherung importieren</translation>
    </message>
    <message>
        <source>Backup &amp; Restore</source>
        <translation>Sichern &amp; Wiederherstellen</translation>
    </message>
    <message>
        <source>Save or restore your data to a portable backup file.</source>
        <translation>Ihre Daten in einer portablen Sicherungsdatei sichern oder daraus wiederherstellen.</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Export läuft...</translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Sicherung abgeschlossen</translation>
    </message>
    <message>
        <source>Backup saved to:
%1</source>
        <translation>Sicherung gespeichert unter:
%1</translation>
    </message>
    <message>
        <source>Backup Failed</source>
        <translation>Sicherung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not write to:
%1</source>
        <translation>In diese Datei konnte nicht geschrieben werden:
%1</translation>
    </message>
    <message>
        <source>Import Failed</source>
        <translation>Import fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not read file.</source>
        <translation>Die Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Import läuft...</translation>
    </message>
    <message>
        <source>Replace all with backup data</source>
        <translation>Alles durch Sicherungsdaten ersetzen</translation>
    </message>
    <message>
        <source>Keep newer (compare timestamps)</source>
        <translation>Neuere behalten (Zeitstempel vergleichen)</translation>
    </message>
    <message>
        <source>Skip existing items</source>
        <translation>Vorhandene Einträge überspringen</translation>
    </message>
    <message>
        <source>Import Mode</source>
        <translation>Importmodus</translation>
    </message>
    <message>
        <source>How should existing data be handled?</source>
        <translation>Wie soll mit vorhandenen Daten verfahren werden?</translation>
    </message>
    <message>
        <source>Imported %1 items, skipped %2.</source>
        <translation>%1 Einträge importiert, %2 übersprungen.</translation>
    </message>
    <message numerus="yes">
        <source>

%n error(s) occurred.</source>
        <translation>
            <numerusform>

Es ist %n Fehler aufgetreten.</numerusform>
            <numerusform>

Es sind %n Fehler aufgetreten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import Complete</source>
        <translation>Import abgeschlossen</translation>
    </message>
</context>
<context>
    <name>SettingsDeletedAccounts</name>
    <message>
        <source>Restore Selected</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Deleted Accounts</source>
        <translation>Gelöschte Konten</translation>
    </message>
    <message>
        <source>Accounts you&apos;ve deleted can be restored here.</source>
        <translation>Gelöschte Konten können Sie hier wiederherstellen.</translation>
    </message>
</context>
<context>
    <name>SettingsGeneralPage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Control how Kestrelwood Pursewell looks.</source>
        <translation>Hier legen Sie fest, wie Kestrelwood Pursewell aussieht.</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Extra Large</source>
        <translation>Sehr groß</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Week starts on</source>
        <translation>Wochenbeginn</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Regional</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Date and calendar preferences.</source>
        <translation>Einstellungen für Datum und Kalender.</translation>
    </message>
</context>
<context>
    <name>SettingsNavigation</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Kontobuch</translation>
    </message>
    <message>
        <source>Data &amp; Sync</source>
        <translation>Daten &amp; Sync</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>SettingsRegisterPage</name>
    <message>
        <source>Register</source>
        <translation>Kontobuch</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>How transactions appear in the register.</source>
        <translation>So erscheinen Buchungen im Kontobuch.</translation>
    </message>
    <message>
        <source>Two-line rows</source>
        <translation>Zweizeilige Buchungen</translation>
    </message>
    <message>
        <source>Show memo on a second line below the payee.</source>
        <translation>Zeigt die Notiz in einer zweiten Zeile unter dem Empfänger.</translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Control the order of transactions in the register.</source>
        <translation>Reihenfolge der Buchungen im Kontobuch.</translation>
    </message>
    <message>
        <source>Show newest transactions first</source>
        <translation>Neueste Buchungen zuerst anzeigen</translation>
    </message>
    <message>
        <source>When enabled, the most recent transactions appear at the top.</source>
        <translation>Wenn aktiviert, stehen die neuesten Buchungen oben.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Data &amp; Sync</source>
        <translation>Daten &amp; Sync</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Sprache geändert</translation>
    </message>
    <message>
        <source>The new language will take effect the next time you start Kestrelwood Pursewell.</source>
        <translation>Die neue Sprache gilt ab dem nächsten Start von Kestrelwood Pursewell.</translation>
    </message>
    <message>
        <source>Restore Failed</source>
        <translation>Wiederherstellung fehlgeschlagen</translation>
    </message>
    <message>
        <source>The account could not be restored.</source>
        <translation>Das Konto konnte nicht wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>SettingsSyncSection</name>
    <message>
        <source>Sync</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>Keep your pursewell in sync across all your devices.</source>
        <translation>Halten Sie Ihr Pursewell auf allen Geräten auf demselben Stand.</translation>
    </message>
    <message>
        <source>Sync Now</source>
        <translation>Synchronisieren</translation>
    </message>
    <message>
        <source>Force Full Sync</source>
        <translation>Alles synchronisieren</translation>
    </message>
    <message>
        <source>Not signed in.
Sign in via File › Kestrelwood Account to enable sync.</source>
        <translation>Nicht angemeldet.
Melden Sie sich über Datei › Kestrelwood-Konto an, um die Synchronisierung zu aktivieren.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Signed in as:&lt;/b&gt; %1&lt;br&gt;&lt;b&gt;Status:&lt;/b&gt; &lt;span style=&quot;color:%2&quot;&gt;%3&lt;/span&gt;</source>
        <translation>&lt;b&gt;Angemeldet als:&lt;/b&gt; %1&lt;br&gt;&lt;b&gt;Status:&lt;/b&gt; &lt;span style=&quot;color:%2&quot;&gt;%3&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Never synced</source>
        <translation>Noch nie synchronisiert</translation>
    </message>
    <message>
        <source>Last synced: %1</source>
        <translation>Zuletzt synchronisiert: %1</translation>
    </message>
    <message>
        <source>
Error: %1</source>
        <translation>
Fehler: %1</translation>
    </message>
    <message>
        <source>This will re-upload every local row to the server and re-download all server data. Use this if data appears out of sync between devices.

Continue?</source>
        <translation>Alle lokalen Daten werden erneut auf den Server hochgeladen und alle Daten vom Server neu heruntergeladen. Das hilft, wenn die Daten auf Ihren Geräten voneinander abweichen.

Fortfahren?</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisiere...</translation>
    </message>
</context>
<context>
    <name>SplitEditorDialog</name>
    <message>
        <source>Split Transaction</source>
        <translation>Buchung aufteilen</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Summe: %1</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>+ Add Line</source>
        <translation>+ Neue Zeile</translation>
    </message>
    <message>
        <source>- Remove</source>
        <translation>- Entfernen</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>Remaining: %1</source>
        <translation>Restbetrag: %1</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s)</source>
        <translation>
            <numerusform>%n Konto</numerusform>
            <numerusform>%n Konten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  •  %n recurring due</source>
        <translation>
            <numerusform>  •  %n Buchung fällig</numerusform>
            <numerusform>  •  %n Buchungen fällig</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransactionDetailsDialog</name>
    <message>
        <source>Transaction Details</source>
        <translation>Buchungsdetails</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Empfänger:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Betrag:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation>Scheck-Nr.:</translation>
    </message>
    <message>
        <source>Transfer to:</source>
        <translation>Umbuchung auf:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>—Split—</source>
        <translation>—Aufgeteilt—</translation>
    </message>
    <message>
        <source>Split lines</source>
        <translation>Teilbeträge</translation>
    </message>
    <message>
        <source>(no split lines on record)</source>
        <translation>(keine Teilbeträge vorhanden)</translation>
    </message>
    <message>
        <source>(uncategorized)</source>
        <translation>(ohne Kategorie)</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Entered: %1</source>
        <translation>Erfasst: %1</translation>
    </message>
    <message>
        <source>Last modified: %1</source>
        <translation>Zuletzt geändert: %1</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Löschen...</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Unbestätigt</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Abgeglichen</translation>
    </message>
    <message>
        <source>Mark Uncleared</source>
        <translation>Als unbestätigt markieren</translation>
    </message>
    <message>
        <source>Mark Cleared</source>
        <translation>Als bestätigt markieren</translation>
    </message>
</context>
<context>
    <name>TransactionFormDialog</name>
    <message>
        <source>New Transaction</source>
        <translation>Neue Buchung</translation>
    </message>
    <message>
        <source>Edit Transaction</source>
        <translation>Buchung bearbeiten</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Empfänger:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Betrag:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation>Scheck-Nr.:</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Einzahlung</translation>
    </message>
    <message>
        <source>Start typing to search payees...</source>
        <translation>Tippen, um Empfänger zu suchen...</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Split this transaction across multiple categories with their own amounts and memos.</source>
        <translation>Diese Buchung auf mehrere Kategorien mit eigenen Beträgen und Notizen aufteilen.</translation>
    </message>
    <message>
        <source>Clear split</source>
        <translation>Aufteilung aufheben</translation>
    </message>
    <message>
        <source>Drop the split and return to a single-category transaction.</source>
        <translation>Die Aufteilung verwerfen und die Buchung wieder einer einzigen Kategorie zuordnen.</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <source>—Split—</source>
        <translation>—Aufgeteilt—</translation>
    </message>
    <message>
        <source>Edit splits...</source>
        <translation>Aufteilung...</translation>
    </message>
    <message>
        <source>Split...</source>
        <translation>Aufteilen...</translation>
    </message>
</context>
<context>
    <name>WelcomeScreen</name>
    <message>
        <source>Your session has ended. Sign back in to keep syncing.</source>
        <translation>Ihre Sitzung ist abgelaufen. Melden Sie sich wieder an, um weiter zu synchronisieren.</translation>
    </message>
    <message>
        <source>Works fully offline. Your data stays on this device.</source>
        <translation>Funktioniert vollständig offline. Ihre Daten bleiben auf diesem Gerät.</translation>
    </message>
    <message>
        <source>How it works</source>
        <translation>So funktioniert es</translation>
    </message>
    <message>
        <source>Add an account (checking, savings, credit card, or any account you&apos;d like to track).</source>
        <translation>Legen Sie ein Konto an (Girokonto, Sparkonto, Kreditkarte oder jedes andere Konto, das Sie im Blick behalten möchten).</translation>
    </message>
    <message>
        <source>Record transactions as you spend.</source>
        <translation>Erfassen Sie Ihre Buchungen, sobald sie anfallen.</translation>
    </message>
    <message>
        <source>Reconcile when your statement arrives.</source>
        <translation>Gleichen Sie ab, wenn der Kontoauszug kommt.</translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation>Willkommen zurück</translation>
    </message>
    <message>
        <source>Welcome to
Kestrelwood Pursewell</source>
        <translation>Willkommen bei
Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Sign in to keep your data synced across devices.</source>
        <translation>Melden Sie sich an, um Ihre Daten auf allen Geräten synchron zu halten.</translation>
    </message>
    <message>
        <source>A digital pursewell register.</source>
        <translation>Ein digitales Pursewell-Kontobuch.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Already have an account? Sign In</source>
        <translation>Schon registriert? Anmelden</translation>
    </message>
    <message>
        <source>Create a different account</source>
        <translation>Anderes Konto anlegen</translation>
    </message>
    <message>
        <source>Create Your First Account</source>
        <translation>Erstes Konto anlegen</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AccountFormDialog</name>
    <message>
        <source>Opening Balance</source>
        <translation>Solde initial</translation>
    </message>
    <message>
        <source>New Account</source>
        <translation>Nouveau compte</translation>
    </message>
    <message>
        <source>Edit Account</source>
        <translation>Modifier le compte</translation>
    </message>
    <message>
        <source>Account name</source>
        <translation>Nom du compte</translation>
    </message>
    <message>
        <source>Bank name (optional)</source>
        <translation>Nom de la banque (facultatif)</translation>
    </message>
    <message>
        <source>Last 4 digits (optional)</source>
        <translation>4 derniers chiffres (facultatif)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Type&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Devise&#xa0;:</translation>
    </message>
    <message>
        <source>Starting &amp;Balance:</source>
        <translation>&amp;Solde initial&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;As of:</source>
        <translation>A&amp;u&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Institution:</source>
        <translation>Éta&amp;blissement&#xa0;:</translation>
    </message>
    <message>
        <source>Account &amp;Number:</source>
        <translation>Nu&amp;méro de compte&#xa0;:</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
</context>
<context>
    <name>AccountSharingService</name>
    <message>
        <source>Failed to share account (HTTP %1)</source>
        <translation>Échec du partage du compte (HTTP %1)</translation>
    </message>
</context>
<context>
    <name>AccountTypeName</name>
    <message>
        <source>Checking</source>
        <translation>Compte courant</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Épargne</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Carte de crédit</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Espèces</translation>
    </message>
    <message>
        <source>Investment</source>
        <translation>Placements</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Database Error</source>
        <translation>Erreur de base de données</translation>
    </message>
    <message>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>Impossible d&apos;initialiser la base de données.

Dossier des données&#xa0;: %1

Vérifiez les droits d&apos;accès aux fichiers, puis réessayez.</translation>
    </message>
</context>
<context>
    <name>BackupService</name>
    <message>
        <source>Failed to open ZIP archive</source>
        <translation>Impossible d&apos;ouvrir l&apos;archive ZIP</translation>
    </message>
    <message>
        <source>Invalid backup: missing manifest.json</source>
        <translation>Sauvegarde non valide&#xa0;: manifest.json est absent</translation>
    </message>
    <message>
        <source>Unsupported backup version: %1</source>
        <translation>Version de sauvegarde non prise en charge&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: unexpected error</source>
        <translation>%1&#xa0;: erreur inattendue</translation>
    </message>
    <message>
        <source>%1: invalid JSON</source>
        <translation>%1&#xa0;: JSON non valide</translation>
    </message>
    <message>
        <source>%1: unknown column &quot;%2&quot;</source>
        <translation>%1&#xa0;: colonne inconnue «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>CategoriesScreen</name>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Search categories...</source>
        <translation>Rechercher une catégorie...</translation>
    </message>
    <message>
        <source>+ New Category</source>
        <translation>+ Nouvelle catégorie</translation>
    </message>
    <message>
        <source>&amp;New Category</source>
        <translation>&amp;Nouvelle catégorie</translation>
    </message>
    <message>
        <source>Add &amp;Subcategory</source>
        <translation>Ajouter une &amp;sous-catégorie</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Delete Category</source>
        <translation>Supprimer la catégorie</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Transactions using this category will become uncategorized.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;? Les opérations de cette catégorie n&apos;auront plus de catégorie.</translation>
    </message>
</context>
<context>
    <name>CategoryFormDialog</name>
    <message>
        <source>Edit Category</source>
        <translation>Modifier la catégorie</translation>
    </message>
    <message>
        <source>New Category</source>
        <translation>Nouvelle catégorie</translation>
    </message>
    <message>
        <source>New Subcategory</source>
        <translation>Nouvelle sous-catégorie</translation>
    </message>
    <message>
        <source>Category name</source>
        <translation>Nom de la catégorie</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Dépense</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Revenu</translation>
    </message>
    <message>
        <source>Tax-relevant</source>
        <translation>À déclarer (impôts)</translation>
    </message>
    <message>
        <source>Mark this category for inclusion in tax-time reports.</source>
        <translation>Inclure cette catégorie dans les rapports destinés à la déclaration d&apos;impôts.</translation>
    </message>
    <message>
        <source>e.g. charitable_contributions, mortgage_interest</source>
        <translation>p. ex. charitable_contributions, mortgage_interest</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Type&#xa0;:</translation>
    </message>
    <message>
        <source>Tax &amp;Code:</source>
        <translation>&amp;Code fiscal&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Parent:</source>
        <translation>&amp;Parent&#xa0;:</translation>
    </message>
</context>
<context>
    <name>CategoryService</name>
    <message>
        <source>Charitable Donations</source>
        <translation>Dons aux associations</translation>
    </message>
    <message>
        <source>Medical Expenses</source>
        <translation>Frais médicaux</translation>
    </message>
    <message>
        <source>Business Expenses</source>
        <translation>Frais professionnels</translation>
    </message>
    <message>
        <source>Home Office</source>
        <translation>Bureau à domicile</translation>
    </message>
    <message>
        <source>Education Expenses</source>
        <translation>Études et formation</translation>
    </message>
    <message>
        <source>State &amp; Local Taxes</source>
        <translation>Impôts locaux</translation>
    </message>
    <message>
        <source>Mortgage Interest</source>
        <translation>Intérêts d&apos;emprunt immobilier</translation>
    </message>
    <message>
        <source>Property Tax</source>
        <translation>Taxe foncière</translation>
    </message>
    <message>
        <source>Housing</source>
        <translation>Logement</translation>
    </message>
    <message>
        <source>Rent/Mortgage Payment</source>
        <translation>Loyer/Crédit immobilier</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Entretien</translation>
    </message>
    <message>
        <source>HOA</source>
        <translation>Charges de copropriété</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Electric</source>
        <translation>Électricité</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gaz</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Transportation</source>
        <translation>Transports</translation>
    </message>
    <message>
        <source>Gas/Fuel</source>
        <translation>Carburant</translation>
    </message>
    <message>
        <source>Car Payment</source>
        <translation>Crédit auto</translation>
    </message>
    <message>
        <source>Auto Insurance</source>
        <translation>Assurance auto</translation>
    </message>
    <message>
        <source>Public Transit</source>
        <translation>Transports en commun</translation>
    </message>
    <message>
        <source>Groceries</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Dining &amp; Restaurants</source>
        <translation>Restaurants et cafés</translation>
    </message>
    <message>
        <source>Personal Care</source>
        <translation>Hygiène et beauté</translation>
    </message>
    <message>
        <source>Pets</source>
        <translation>Animaux</translation>
    </message>
    <message>
        <source>Subscriptions</source>
        <translation>Abonnements</translation>
    </message>
    <message>
        <source>Gifts</source>
        <translation>Cadeaux</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Loisirs</translation>
    </message>
    <message>
        <source>Streaming</source>
        <translation>Streaming</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Cinéma</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Sorties et spectacles</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>Achats</translation>
    </message>
    <message>
        <source>Clothing</source>
        <translation>Vêtements</translation>
    </message>
    <message>
        <source>Electronics</source>
        <translation>Électronique</translation>
    </message>
    <message>
        <source>Household</source>
        <translation>Maison</translation>
    </message>
    <message>
        <source>Insurance</source>
        <translation>Assurances</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>Life</source>
        <translation>Vie</translation>
    </message>
    <message>
        <source>Home/Renters</source>
        <translation>Habitation</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Fees &amp; Charges</source>
        <translation>Frais et commissions</translation>
    </message>
    <message>
        <source>Bank Fees</source>
        <translation>Frais bancaires</translation>
    </message>
    <message>
        <source>ATM Fees</source>
        <translation>Frais de retrait</translation>
    </message>
    <message>
        <source>Late Fees</source>
        <translation>Pénalités de retard</translation>
    </message>
    <message>
        <source>Salary / Wages</source>
        <translation>Salaires</translation>
    </message>
    <message>
        <source>Interest Income</source>
        <translation>Intérêts perçus</translation>
    </message>
    <message>
        <source>Dividend Income</source>
        <translation>Dividendes</translation>
    </message>
    <message>
        <source>Rental Income</source>
        <translation>Revenus locatifs</translation>
    </message>
    <message>
        <source>Freelance / Consulting</source>
        <translation>Activité indépendante</translation>
    </message>
    <message>
        <source>Refunds</source>
        <translation>Remboursements</translation>
    </message>
    <message>
        <source>Gifts Received</source>
        <translation>Cadeaux reçus</translation>
    </message>
    <message>
        <source>Other Income</source>
        <translation>Autres revenus</translation>
    </message>
</context>
<context>
    <name>CategoryTreeModel</name>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Tax Code</source>
        <translation>Code fiscal</translation>
    </message>
</context>
<context>
    <name>ComparisonBar</name>
    <message>
        <source>This Year vs Last Year</source>
        <translation>Cette année / année dernière</translation>
    </message>
    <message>
        <source>Last Year vs Year Before</source>
        <translation>Année dernière / précédente</translation>
    </message>
    <message>
        <source>This Quarter vs Last Quarter</source>
        <translation>Ce trimestre / trimestre dernier</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisée</translation>
    </message>
    <message>
        <source>Compare:</source>
        <translation>Comparer&#xa0;:</translation>
    </message>
    <message>
        <source>P1:</source>
        <translation>P1&#xa0;:</translation>
    </message>
    <message>
        <source>P2:</source>
        <translation>P2&#xa0;:</translation>
    </message>
    <message>
        <source>P1: %1 – %2    P2: %3 – %4</source>
        <translation>P1&#xa0;: %1 – %2    P2&#xa0;: %3 – %4</translation>
    </message>
    <message>
        <source>P1 from</source>
        <translation>P1 du</translation>
    </message>
    <message>
        <source>P1 to</source>
        <translation>P1 au</translation>
    </message>
    <message>
        <source>P2 from</source>
        <translation>P2 du</translation>
    </message>
    <message>
        <source>P2 to</source>
        <translation>P2 au</translation>
    </message>
</context>
<context>
    <name>CsvMappingForm</name>
    <message>
        <source>CSV Column Mapping:</source>
        <translation>Affectation des colonnes CSV&#xa0;:</translation>
    </message>
    <message>
        <source>First row is header</source>
        <translation>En-tête en première ligne</translation>
    </message>
    <message>
        <source>Date column:</source>
        <translation>Colonne date&#xa0;:</translation>
    </message>
    <message>
        <source>Payee column:</source>
        <translation>Colonne tiers&#xa0;:</translation>
    </message>
    <message>
        <source>Amount column:</source>
        <translation>Colonne montant&#xa0;:</translation>
    </message>
    <message>
        <source>Memo column:</source>
        <translation>Colonne mémo&#xa0;:</translation>
    </message>
    <message>
        <source>Category column:</source>
        <translation>Colonne catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Date format:</source>
        <translation>Format de date&#xa0;:</translation>
    </message>
    <message>
        <source>Auto-detect</source>
        <translation>Détection auto</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Col %1: %2</source>
        <translation>Col. %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Col %1</source>
        <translation>Col. %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>DateField</name>
    <message>
        <source>Open calendar (F4)</source>
        <translation>Ouvrir le calendrier (F4)</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>You can also import transactions from a CSV file via File › Import.</source>
        <translation>Vous pouvez aussi importer des opérations depuis un fichier CSV via le menu Fichier › Importer.</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Créer un compte</translation>
    </message>
    <message>
        <source>Welcome to Kestrelwood Pursewell</source>
        <translation>Bienvenue dans Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Create your first account to get started.</source>
        <translation>Créez votre premier compte pour commencer.</translation>
    </message>
</context>
<context>
    <name>ImportScreen</name>
    <message>
        <source>Import Transactions</source>
        <translation>Importer des opérations</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Compte&#xa0;:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fichier&#xa0;:</translation>
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
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Aucun fichier choisi</translation>
    </message>
    <message>
        <source>Select QIF File(s)</source>
        <translation>Choisir des fichiers QIF</translation>
    </message>
    <message>
        <source>QIF Files (*.qif)</source>
        <translation>Fichiers QIF (*.qif)</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n fichier choisi</numerusform>
            <numerusform>%n fichiers choisis</numerusform>
        </translation>
    </message>
    <message>
        <source>Analyzing QIF file(s)...</source>
        <translation>Analyse des fichiers QIF...</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*)</source>
        <translation>Fichiers CSV (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>No target account</source>
        <translation>Aucun compte de destination</translation>
    </message>
    <message>
        <source>Pick an account to import into, or create one now.</source>
        <translation>Choisissez le compte dans lequel importer, ou créez-en un maintenant.</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Importation...</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
</context>
<context>
    <name>ImportService</name>
    <message>
        <source>%1 (no account header)</source>
        <translation>%1 (sans en-tête de compte)</translation>
    </message>
    <message>
        <source>Imported transaction</source>
        <translation>Opération importée</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>Import failed.</source>
        <translation>L&apos;importation a échoué.</translation>
    </message>
    <message>
        <source>A database error stopped the import and all changes were rolled back. No transactions were added.</source>
        <translation>Une erreur de base de données a interrompu l&apos;importation et toutes les modifications ont été annulées. Aucune opération n&apos;a été ajoutée.</translation>
    </message>
    <message>
        <source>Import complete!</source>
        <translation>Importation terminée&#xa0;!</translation>
    </message>
    <message numerus="yes">
        <source>%n transaction(s) imported</source>
        <translation>
            <numerusform>%n opération importée</numerusform>
            <numerusform>%n opérations importées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n transfer(s) linked across accounts</source>
        <translation>
            <numerusform>%n virement lié entre comptes</numerusform>
            <numerusform>%n virements liés entre comptes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  (including %n linked to previously imported row(s))</source>
        <translation>
            <numerusform>  (dont %n lié à une ligne déjà importée)</numerusform>
            <numerusform>  (dont %n liés à des lignes déjà importées)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate(s) skipped</source>
        <translation>
            <numerusform>%n doublon ignoré</numerusform>
            <numerusform>%n doublons ignorés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unparseable)</source>
        <translation>
            <numerusform>%n enregistrement ignoré (illisible)</numerusform>
            <numerusform>%n enregistrements ignorés (illisibles)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n metadata record(s) skipped</source>
        <translation>
            <numerusform>%n enregistrement de métadonnées ignoré</numerusform>
            <numerusform>%n enregistrements de métadonnées ignorés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unmapped source account)</source>
        <translation>
            <numerusform>%n enregistrement ignoré (compte source sans destination)</numerusform>
            <numerusform>%n enregistrements ignorés (compte source sans destination)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (database error — see log)</source>
        <translation>
            <numerusform>%n enregistrement ignoré (erreur de base de données — voir le journal)</numerusform>
            <numerusform>%n enregistrements ignorés (erreur de base de données — voir le journal)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KestAccount::AccountScreen</name>
    <message>
        <source>Kestrelwood Account</source>
        <translation>Compte Kestrelwood</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Data &amp; Privacy</source>
        <translation>Confidentialité</translation>
    </message>
</context>
<context>
    <name>KestAccount::DevicesPage</name>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Registered Devices</source>
        <translation>Appareils enregistrés</translation>
    </message>
    <message>
        <source>Devices that have synced with your account.</source>
        <translation>Appareils déjà synchronisés avec votre compte.</translation>
    </message>
    <message>
        <source>No devices registered.</source>
        <translation>Aucun appareil enregistré.</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>Appareil inconnu</translation>
    </message>
    <message>
        <source>  ·  v%1</source>
        <translation>  ·  v%1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Retirer l&apos;appareil</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>Retirer %1&#xa0;?</translation>
    </message>
    <message>
        <source>Device removed.</source>
        <translation>Appareil retiré.</translation>
    </message>
</context>
<context>
    <name>KestAccount::GroupPage</name>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>%1 of %2 seats used</source>
        <translation>Places utilisées&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Membres</translation>
    </message>
    <message>
        <source>No Group</source>
        <translation>Aucun groupe</translation>
    </message>
    <message>
        <source>You&apos;re not part of a group. The group owner can invite you, or you can join with an invite code.</source>
        <translation>Vous ne faites partie d&apos;aucun groupe. Le propriétaire d&apos;un groupe peut vous inviter, ou vous pouvez en rejoindre un avec un code d&apos;invitation.</translation>
    </message>
    <message>
        <source>Join with Invite Code</source>
        <translation>Rejoindre avec un code</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Propriétaire</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Pending Invitations</source>
        <translation>Invitations en attente</translation>
    </message>
    <message>
        <source>Invite code: %1</source>
        <translation>Code d&apos;invitation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Révoquer</translation>
    </message>
    <message>
        <source>Invite Members</source>
        <translation>Inviter des membres</translation>
    </message>
    <message>
        <source>Invite by Email</source>
        <translation>Inviter par e-mail</translation>
    </message>
    <message>
        <source>Generate Invite Code</source>
        <translation>Générer un code</translation>
    </message>
    <message>
        <source>Leave Group</source>
        <translation>Quitter le groupe</translation>
    </message>
    <message>
        <source>Join Group</source>
        <translation>Rejoindre un groupe</translation>
    </message>
    <message>
        <source>Enter invite code:</source>
        <translation>Saisissez le code d&apos;invitation&#xa0;:</translation>
    </message>
    <message>
        <source>Invalid or expired invite code.</source>
        <translation>Code d&apos;invitation non valide ou expiré.</translation>
    </message>
    <message>
        <source>Joined group.</source>
        <translation>Vous avez rejoint le groupe.</translation>
    </message>
    <message>
        <source>Remove Member</source>
        <translation>Retirer le membre</translation>
    </message>
    <message>
        <source>Remove %1 from the group?</source>
        <translation>Retirer %1 du groupe&#xa0;?</translation>
    </message>
    <message>
        <source>%1 removed.</source>
        <translation>%1 ne fait plus partie du groupe.</translation>
    </message>
    <message>
        <source>Invitation revoked.</source>
        <translation>Invitation révoquée.</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>Adresse e-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Failed to send invitation.</source>
        <translation>Impossible d&apos;envoyer l&apos;invitation.</translation>
    </message>
    <message>
        <source>Invitation sent.</source>
        <translation>Invitation envoyée.</translation>
    </message>
    <message>
        <source>Failed to generate code.</source>
        <translation>Impossible de générer un code.</translation>
    </message>
    <message>
        <source>Invite Code</source>
        <translation>Code d&apos;invitation</translation>
    </message>
    <message>
        <source>Share this code with the person you want to invite:

%1</source>
        <translation>Communiquez ce code à la personne que vous souhaitez inviter&#xa0;:

%1</translation>
    </message>
    <message>
        <source>Leave this group? You will lose access to shared data.</source>
        <translation>Quitter ce groupe&#xa0;? Vous n&apos;aurez plus accès aux données partagées.</translation>
    </message>
    <message>
        <source>Left group.</source>
        <translation>Vous avez quitté le groupe.</translation>
    </message>
</context>
<context>
    <name>KestAccount::PrivacyPage</name>
    <message>
        <source>Data &amp; Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Danger Zone</source>
        <translation>Zone de danger</translation>
    </message>
    <message>
        <source>Permanently delete your account. This cannot be undone after 30 days.</source>
        <translation>Supprimez définitivement votre compte. Après 30 jours, la suppression est irréversible.</translation>
    </message>
    <message>
        <source>Delete Account</source>
        <translation>Supprimer le compte</translation>
    </message>
    <message>
        <source>You are the group owner. Transfer ownership or remove all members before deleting your account.</source>
        <translation>Vous êtes propriétaire du groupe. Cédez-en la propriété ou retirez tous les membres avant de supprimer votre compte.</translation>
    </message>
    <message>
        <source>This will schedule your account for permanent deletion after 30 days.

Type DELETE to confirm:</source>
        <translation>Votre compte sera supprimé définitivement dans 30 jours.

Saisissez DELETE pour confirmer&#xa0;:</translation>
    </message>
    <message>
        <source>Failed to delete account.</source>
        <translation>Impossible de supprimer le compte.</translation>
    </message>
    <message>
        <source>Account Scheduled for Deletion</source>
        <translation>Suppression du compte programmée</translation>
    </message>
    <message>
        <source>Your account will be permanently deleted in 30 days. You can recover it by signing in before then.</source>
        <translation>Votre compte sera supprimé définitivement dans 30 jours. Vous pouvez le récupérer en vous connectant d&apos;ici là.</translation>
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
        <translation>Informations personnelles</translation>
    </message>
    <message>
        <source>Edit Display Name</source>
        <translation>Modifier le nom affiché</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Change your account password.</source>
        <translation>Changez le mot de passe de votre compte.</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Changer le mot de passe</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(non défini)</translation>
    </message>
    <message>
        <source>Display name:</source>
        <translation>Nom affiché&#xa0;:</translation>
    </message>
    <message>
        <source>Failed to update profile.</source>
        <translation>Impossible de modifier le profil.</translation>
    </message>
    <message>
        <source>Display name updated.</source>
        <translation>Nom affiché modifié.</translation>
    </message>
    <message>
        <source>Current password:</source>
        <translation>Mot de passe actuel&#xa0;:</translation>
    </message>
    <message>
        <source>New password (min 8 characters):</source>
        <translation>Nouveau mot de passe (8 caractères min.)&#xa0;:</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Le mot de passe doit comporter au moins 8 caractères.</translation>
    </message>
    <message>
        <source>Confirm new password:</source>
        <translation>Confirmez le nouveau mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Passwords do not match.</source>
        <translation>Les mots de passe ne correspondent pas.</translation>
    </message>
    <message>
        <source>Password changed.</source>
        <translation>Mot de passe changé.</translation>
    </message>
    <message>
        <source>Failed to change password.</source>
        <translation>Impossible de changer le mot de passe.</translation>
    </message>
</context>
<context>
    <name>KestAccount::RelativeTime</name>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Active now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>%1m ago</source>
        <translation>Il y a %1&#xa0;min</translation>
    </message>
    <message>
        <source>%1h ago</source>
        <translation>Il y a %1&#xa0;h</translation>
    </message>
    <message>
        <source>%1d ago</source>
        <translation>Il y a %1&#xa0;j</translation>
    </message>
</context>
<context>
    <name>KestAccount::SecurityPage</name>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Active Sessions</source>
        <translation>Sessions actives</translation>
    </message>
    <message>
        <source>Sessions currently signed in to your account.</source>
        <translation>Sessions actuellement connectées à votre compte.</translation>
    </message>
    <message>
        <source>No active sessions.</source>
        <translation>Aucune session active.</translation>
    </message>
    <message>
        <source>Unknown client</source>
        <translation>Client inconnu</translation>
    </message>
    <message>
        <source>This session</source>
        <translation>Cette session</translation>
    </message>
    <message>
        <source>  ·  %1</source>
        <translation>  ·  %1</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actuelle</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Révoquer</translation>
    </message>
    <message>
        <source>Session revoked.</source>
        <translation>Session révoquée.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ShareMembersDialog</name>
    <message>
        <source>Could not share with %1.</source>
        <translation>Impossible de partager avec %1.</translation>
    </message>
    <message>
        <source>Could not remove %1.</source>
        <translation>Impossible de retirer %1.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ShareWords</name>
    <message>
        <source>People with access</source>
        <translation>Personnes ayant accès</translation>
    </message>
    <message>
        <source>Add people</source>
        <translation>Ajouter des personnes</translation>
    </message>
    <message>
        <source>Not shared with anyone yet.</source>
        <translation>Pas encore partagé.</translation>
    </message>
    <message>
        <source>You don&apos;t have a family group yet.</source>
        <translation>Vous n&apos;avez pas encore de groupe familial.</translation>
    </message>
    <message>
        <source>All group members already have access</source>
        <translation>Tous les membres du groupe ont déjà accès</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Remove access</source>
        <translation>Retirer l&apos;accès</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Remove access?</source>
        <translation>Retirer l&apos;accès&#xa0;?</translation>
    </message>
    <message>
        <source>%1 will no longer have access. Continue?</source>
        <translation>%1 n&apos;y aura plus accès. Continuer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>KestUpdate::Flow</name>
    <message>
        <source>No release notes available for %1 %2</source>
        <translation>Aucune note de version disponible pour %1 %2</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>%1 is up to date (version %2)</source>
        <translation>%1 est à jour (version %2)</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Échec de la recherche de mises à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Chargement des notes de version…</translation>
    </message>
</context>
<context>
    <name>KestUpdate::NotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
</context>
<context>
    <name>KestUpdate::UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>A new version of %1 is available.</source>
        <translation>Une nouvelle version de %1 est disponible.</translation>
    </message>
    <message>
        <source>You have version %1. The latest version is %2.</source>
        <translation>Vous avez la version %1. La dernière version est la %2.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Chargement des notes de version…</translation>
    </message>
    <message>
        <source>*Release notes are not available for this version.*</source>
        <translation>*Les notes de version ne sont pas disponibles pour cette version.*</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>KestUpdate::WhatsNewDialog</name>
    <message>
        <source>What&apos;s New in %1 %2</source>
        <translation>Nouveautés de %1 %2</translation>
    </message>
    <message>
        <source>What&apos;s new in %1 %2</source>
        <translation>Nouveautés de %1 %2</translation>
    </message>
    <message>
        <source>You are running version %1</source>
        <translation>Vous utilisez la version %1</translation>
    </message>
    <message>
        <source>Download %1</source>
        <translation>Télécharger %1</translation>
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
            <numerusform>%n opération récurrente saisie automatiquement</numerusform>
            <numerusform>%n opérations récurrentes saisies automatiquement</numerusform>
        </translation>
    </message>
    <message>
        <source>No accounts</source>
        <translation>Aucun compte</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total&#xa0;: %1</translation>
    </message>
    <message>
        <source>New Account...</source>
        <translation>Nouveau compte...</translation>
    </message>
    <message>
        <source>Edit &quot;%1&quot;...</source>
        <translation>Modifier «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Reconcile...</source>
        <translation>Rapprocher...</translation>
    </message>
    <message>
        <source>Reconciliation History...</source>
        <translation>Historique des rapprochements...</translation>
    </message>
    <message>
        <source>Rename Payees...</source>
        <translation>Renommer des tiers...</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Select an account first</source>
        <translation>Sélectionnez d&apos;abord un compte</translation>
    </message>
    <message>
        <source>Delete Account</source>
        <translation>Supprimer le compte</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;?

All transactions, recurring entries, and reconciliation history for this account will be removed. You can restore it from Preferences → Data &amp; Sync.</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;?

Toutes les opérations, les opérations récurrentes et l&apos;historique des rapprochements de ce compte seront supprimés. Vous pourrez le restaurer depuis Préférences → Données.</translation>
    </message>
    <message>
        <source>Sample data is already loaded.</source>
        <translation>Les données d&apos;exemple sont déjà chargées.</translation>
    </message>
    <message>
        <source>Sample data loaded</source>
        <translation>Données d&apos;exemple chargées</translation>
    </message>
    <message>
        <source>No sample data to clear.</source>
        <translation>Aucune donnée d&apos;exemple à effacer.</translation>
    </message>
    <message>
        <source>Sample data cleared</source>
        <translation>Données d&apos;exemple effacées</translation>
    </message>
    <message>
        <source>Sample Data</source>
        <translation>Données d&apos;exemple</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New Transaction</source>
        <translation>&amp;Nouvelle opération</translation>
    </message>
    <message>
        <source>New &amp;Account</source>
        <translation>Nouveau &amp;compte</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Kestrelwood &amp;Account...</source>
        <translation>Compte &amp;Kestrelwood...</translation>
    </message>
    <message>
        <source>Sign &amp;Out</source>
        <translation>Se &amp;déconnecter</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Rechercher...</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Compte</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>&amp;Reconcile...</source>
        <translation>&amp;Rapprocher...</translation>
    </message>
    <message>
        <source>Reconciliation &amp;History...</source>
        <translation>&amp;Historique des rapprochements...</translation>
    </message>
    <message>
        <source>Rename &amp;Payees...</source>
        <translation>Renommer des &amp;tiers...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Rapports</translation>
    </message>
    <message>
        <source>Re&amp;curring Transactions</source>
        <translation>&amp;Opérations récurrentes</translation>
    </message>
    <message>
        <source>C&amp;ategories</source>
        <translation>&amp;Catégories</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;About Kestrelwood Pursewell</source>
        <translation>À &amp;propos de Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Send &amp;Feedback...</source>
        <translation>En&amp;voyer un avis...</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>Load &amp;Sample Data</source>
        <translation>&amp;Charger les données d&apos;exemple</translation>
    </message>
    <message>
        <source>&amp;Clear Sample Data</source>
        <translation>&amp;Effacer les données d&apos;exemple</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A digital pursewell register for tracking household finances.</source>
        <translation>Le registre numérique Pursewell pour les finances du foyer.</translation>
    </message>
    <message>
        <source>Made and owned by Kestrelwood.</source>
        <translation>Conçu par Kestrelwood, qui en détient les droits.</translation>
    </message>
    <message>
        <source>This application uses the Qt framework under the LGPL v3 license.</source>
        <translation>Cette application utilise le framework Qt sous licence LGPL v3.</translation>
    </message>
    <message>
        <source>Its source code is available at %1</source>
        <translation>Code source&#xa0;: %1</translation>
    </message>
    <message>
        <source>About Kestrelwood Pursewell</source>
        <translation>À propos de Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Register&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Save transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Insert new transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Delete current transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab / Shift+Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Next / previous field&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;&apos; (apostrophe)&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Copy value from field above&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Date Field&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;t&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Today&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;+ / -&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Next / previous day&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;m / h&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of month&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;y / r&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of year&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;w / k&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of week&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;General&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;New transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;New account&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Reconcile account&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%7&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Search transactions&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%8&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Import&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%9&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Reports&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Recurring transactions&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%11&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Categories&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Accounts&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%12 &amp;ndash; %13&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Switch to account 1&amp;ndash;9&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%14&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Switch to account 10&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</source>
        <translation>&lt;h3&gt;Registre&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Enregistrer l&apos;opération&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Insérer une nouvelle opération&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Supprimer l&apos;opération en cours&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab / Shift+Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Champ suivant / précédent&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;&apos; (apostrophe)&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Recopier la valeur du champ au-dessus&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Champ de date&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;t&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Aujourd&apos;hui&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;+ / -&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Jour suivant / précédent&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;m / h&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Premier / dernier jour du mois&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;y / r&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Premier / dernier jour de l&apos;année&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;w / k&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Premier / dernier jour de la semaine&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Général&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Nouvelle opération&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Nouveau compte&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Rapprocher le compte&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%7&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Rechercher des opérations&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%8&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Importer&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%9&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Rapports&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Opérations récurrentes&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%11&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Catégories&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Comptes&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%12 &amp;ndash; %13&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Aller au compte 1&amp;ndash;9&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%14&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Aller au compte 10&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Signed in successfully</source>
        <translation>Connexion réussie</translation>
    </message>
    <message>
        <source>Sign-in failed: %1</source>
        <translation>Échec de la connexion&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sync complete</source>
        <translation>Synchronisation terminée</translation>
    </message>
    <message>
        <source>Sync failed: %1</source>
        <translation>Échec de la synchronisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Manage your account</source>
        <translation>Gérer votre compte</translation>
    </message>
    <message>
        <source>Sign in or sign up</source>
        <translation>Se connecter ou s&apos;inscrire</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Reconcile — %1</source>
        <translation>Rapprochement — %1</translation>
    </message>
    <message>
        <source>Reconciliation History</source>
        <translation>Historique des rapprochements</translation>
    </message>
    <message>
        <source>Recurring Transactions</source>
        <translation>Opérations récurrentes</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>Search Transactions</source>
        <translation>Rechercher des opérations</translation>
    </message>
    <message>
        <source>Import Transactions</source>
        <translation>Importer des opérations</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Payee Management</source>
        <translation>Gestion des tiers</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Partager...</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>&amp;Share...</source>
        <translation>&amp;Partager...</translation>
    </message>
    <message>
        <source>What&apos;s &amp;New...</source>
        <translation>&amp;Nouveautés...</translation>
    </message>
    <message>
        <source>Check for &amp;Updates...</source>
        <translation>Rechercher des &amp;mises à jour...</translation>
    </message>
    <message>
        <source>Kestrelwood Account</source>
        <translation>Compte Kestrelwood</translation>
    </message>
    <message>
        <source>Share Account</source>
        <translation>Partager le compte</translation>
    </message>
    <message>
        <source>Sharing: %1</source>
        <translation>Partage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Share this account with members of your Kestrelwood family group. They&apos;ll see the same register, balances, and reconciliation history on their devices.</source>
        <translation>Partagez ce compte avec les membres de votre groupe familial Kestrelwood. Ils verront le même registre, les mêmes soldes et le même historique des rapprochements sur leurs appareils.</translation>
    </message>
    <message>
        <source>Shared with</source>
        <translation>Partagé avec</translation>
    </message>
    <message>
        <source>Not shared with anyone yet.</source>
        <translation>Pas encore partagé.</translation>
    </message>
    <message>
        <source>You don&apos;t have a family group yet.</source>
        <translation>Vous n&apos;avez pas encore de groupe familial.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Remove access</source>
        <translation>Retirer l&apos;accès</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Remove Share</source>
        <translation>Arrêter le partage</translation>
    </message>
    <message>
        <source>Remove %1&apos;s access to this account?</source>
        <translation>Retirer à %1 l&apos;accès à ce compte&#xa0;?</translation>
    </message>
    <message>
        <source>Sign In Required</source>
        <translation>Connexion requise</translation>
    </message>
    <message>
        <source>Sharing requires a Kestrelwood account.</source>
        <translation>Le partage nécessite un compte Kestrelwood.</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
</context>
<context>
    <name>PayeeMemoEditor</name>
    <message>
        <source>Memo</source>
        <translation>Mémo</translation>
    </message>
</context>
<context>
    <name>PayeeScreen</name>
    <message>
        <source>Payee Management</source>
        <translation>Gestion des tiers</translation>
    </message>
    <message>
        <source>Rename to:</source>
        <translation>Renommer en&#xa0;:</translation>
    </message>
    <message>
        <source>Rename Selected</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Merge Selected</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Rename Complete</source>
        <translation>Tiers renommés</translation>
    </message>
    <message numerus="yes">
        <source>Renamed %n transaction(s).</source>
        <translation>
            <numerusform>Tiers renommé dans %n opération.</numerusform>
            <numerusform>Tiers renommé dans %n opérations.</numerusform>
        </translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusion</translation>
    </message>
    <message>
        <source>Select 2 or more payees to merge.</source>
        <translation>Sélectionnez au moins 2 tiers à fusionner.</translation>
    </message>
    <message>
        <source>Merge Complete</source>
        <translation>Tiers fusionnés</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n transaction(s).</source>
        <translation>
            <numerusform>Tiers remplacé dans %n opération.</numerusform>
            <numerusform>Tiers remplacé dans %n opérations.</numerusform>
        </translation>
    </message>
    <message>
        <source>Merge Payees</source>
        <translation>Fusionner des tiers</translation>
    </message>
    <message>
        <source>Merge %1 payees into &quot;%2&quot;?</source>
        <translation>Fusionner %1 tiers en «&#xa0;%2&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Payees</source>
        <translation>Tiers</translation>
    </message>
</context>
<context>
    <name>QifMappingForm</name>
    <message>
        <source>QIF source accounts:</source>
        <translation>Comptes source QIF&#xa0;:</translation>
    </message>
    <message>
        <source>Choose where each Quicken account should be imported. Accounts mapped across the selected files will have their transfers linked automatically.</source>
        <translation>Choisissez la destination de chaque compte Quicken. Les virements entre ces comptes, même d&apos;un fichier sélectionné à l&apos;autre, seront liés automatiquement.</translation>
    </message>
    <message>
        <source>— Create new account &quot;%1&quot; —</source>
        <translation>— Créer le compte «&#xa0;%1&#xa0;» —</translation>
    </message>
    <message>
        <source>— Skip these transactions —</source>
        <translation>— Ignorer ces opérations —</translation>
    </message>
</context>
<context>
    <name>ReconciliationHistoryScreen</name>
    <message>
        <source>Reconciliation History</source>
        <translation>Historique des rapprochements</translation>
    </message>
    <message>
        <source>No reconciliations yet. Reconcile your account from the register to see the history here.</source>
        <translation>Aucun rapprochement pour l&apos;instant. Rapprochez votre compte depuis le registre pour voir l&apos;historique ici.</translation>
    </message>
    <message>
        <source>Past reconciliations for this account.</source>
        <translation>Rapprochements déjà effectués pour ce compte.</translation>
    </message>
    <message>
        <source>Statement Date</source>
        <translation>Date du relevé</translation>
    </message>
    <message>
        <source>Statement Balance</source>
        <translation>Solde du relevé</translation>
    </message>
    <message>
        <source>Reconciled Balance</source>
        <translation>Solde rapproché</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé le</translation>
    </message>
    <message>
        <source>Reconciliation History — %1</source>
        <translation>Historique des rapprochements — %1</translation>
    </message>
</context>
<context>
    <name>ReconciliationModel</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Tiers</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Clr</source>
        <translation>C/R</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Cochée</translation>
    </message>
    <message>
        <source>Not ticked</source>
        <translation>Non cochée</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Pointée</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Non pointée</translation>
    </message>
</context>
<context>
    <name>ReconciliationScreen</name>
    <message>
        <source>Reconcile Account</source>
        <translation>Rapprocher le compte</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>Finish Reconciliation</source>
        <translation>Terminer le rapprochement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Statement Date:</source>
        <translation>Date du relevé&#xa0;:</translation>
    </message>
    <message>
        <source>Statement Balance:</source>
        <translation>Solde du relevé&#xa0;:</translation>
    </message>
    <message>
        <source>Add Transaction</source>
        <translation>Nouvelle opération</translation>
    </message>
    <message>
        <source>Add a transaction (%1)</source>
        <translation>Ajouter une opération (%1)</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit selected transaction (F2)</source>
        <translation>Modifier l&apos;opération sélectionnée (F2)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete selected transaction (Del)</source>
        <translation>Supprimer l&apos;opération sélectionnée (Suppr)</translation>
    </message>
    <message>
        <source>Reconciliation Complete</source>
        <translation>Rapprochement terminé</translation>
    </message>
    <message>
        <source>Account reconciled successfully.</source>
        <translation>Le compte a été rapproché.</translation>
    </message>
    <message>
        <source>Delete Transaction</source>
        <translation>Supprimer l&apos;opération</translation>
    </message>
    <message>
        <source>Delete the transaction for %1?</source>
        <translation>Supprimer l&apos;opération «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Opérations</translation>
    </message>
</context>
<context>
    <name>ReconciliationSummary</name>
    <message>
        <source>Difference</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Previous Balance</source>
        <translation>Solde précédent</translation>
    </message>
    <message>
        <source>Cleared Deposits</source>
        <translation>Crédits pointés</translation>
    </message>
    <message>
        <source>Cleared Withdrawals</source>
        <translation>Débits pointés</translation>
    </message>
    <message>
        <source>Cleared Balance</source>
        <translation>Solde pointé</translation>
    </message>
    <message>
        <source>Statement Balance</source>
        <translation>Solde du relevé</translation>
    </message>
</context>
<context>
    <name>RecurringFormDialog</name>
    <message>
        <source>New Recurring Transaction</source>
        <translation>Nouvelle opération récurrente</translation>
    </message>
    <message>
        <source>Edit Recurring Transaction</source>
        <translation>Modifier l&apos;opération récurrente</translation>
    </message>
    <message>
        <source>Memorize Transaction</source>
        <translation>Mémoriser l&apos;opération</translation>
    </message>
    <message>
        <source>Start typing to search payees...</source>
        <translation>Tapez pour rechercher un tiers...</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Quotidienne</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Hebdomadaire</translation>
    </message>
    <message>
        <source>Bi-weekly</source>
        <translation>Toutes les 2 semaines</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensuelle</translation>
    </message>
    <message>
        <source>Quarterly</source>
        <translation>Trimestrielle</translation>
    </message>
    <message>
        <source>Semi-annual</source>
        <translation>Semestrielle</translation>
    </message>
    <message>
        <source>Annual</source>
        <translation>Annuelle</translation>
    </message>
    <message>
        <source>Has end date</source>
        <translation>Avec date de fin</translation>
    </message>
    <message>
        <source>Auto-post when due</source>
        <translation>Saisie auto à l&apos;échéance</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Compte&#xa0;:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Tiers&#xa0;:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Montant&#xa0;:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Mémo&#xa0;:</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Fréquence&#xa0;:</translation>
    </message>
    <message>
        <source>Start Date:</source>
        <translation>Date de début&#xa0;:</translation>
    </message>
    <message>
        <source>End Date:</source>
        <translation>Date de fin&#xa0;:</translation>
    </message>
</context>
<context>
    <name>RecurringModel</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Tiers</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Next Due</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>RecurringScreen</name>
    <message>
        <source>Recurring Transactions</source>
        <translation>Opérations récurrentes</translation>
    </message>
    <message>
        <source>Confirm All Due</source>
        <translation>Confirmer les échéances</translation>
    </message>
    <message>
        <source>New Recurring</source>
        <translation>Nouvelle récurrente</translation>
    </message>
    <message>
        <source>(%1 due)</source>
        <translation>(%1 à échéance)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete recurring &quot;%1&quot;?</source>
        <translation>Supprimer l&apos;opération récurrente «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Confirm</source>
        <translation>&amp;Confirmer</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>RegisterColumnLayout</name>
    <message>
        <source>Show columns</source>
        <translation>Colonnes affichées</translation>
    </message>
    <message>
        <source>Reset register layout</source>
        <translation>Réinitialiser la disposition</translation>
    </message>
</context>
<context>
    <name>RegisterHeader</name>
    <message>
        <source>Reconcile</source>
        <translation>Rapprocher</translation>
    </message>
</context>
<context>
    <name>RegisterModel</name>
    <message>
        <source>—Split—</source>
        <translation>—Ventilée—</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Chk #</source>
        <translation>N° chq</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Tiers</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Mémo</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Clr</source>
        <translation>C/R</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>Payee / Memo</source>
        <translation>Tiers / Mémo</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Rapprochée</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Pointée</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Non pointée</translation>
    </message>
    <message>
        <source>New transaction, %1</source>
        <translation>Nouvelle opération, %1</translation>
    </message>
    <message>
        <source>New transaction, %1: %2</source>
        <translation>Nouvelle opération, %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Check number</source>
        <translation>Numéro de chèque</translation>
    </message>
</context>
<context>
    <name>RegisterScreen</name>
    <message>
        <source>Payee is required</source>
        <translation>Le tiers est obligatoire</translation>
    </message>
    <message>
        <source>Enter a payment or deposit amount</source>
        <translation>Saisissez un montant au débit ou au crédit</translation>
    </message>
    <message>
        <source>Transfer account not found</source>
        <translation>Compte du virement introuvable</translation>
    </message>
    <message>
        <source>Transfers require both accounts to use the same currency</source>
        <translation>Un virement n&apos;est possible qu&apos;entre deux comptes de même devise</translation>
    </message>
    <message>
        <source>Transfer to %1</source>
        <translation>Virement vers %1</translation>
    </message>
    <message>
        <source>Transfer from %1</source>
        <translation>Virement depuis %1</translation>
    </message>
    <message>
        <source>%1: save  |  Enter: next  |  %2: delete  |  %3: memorize  |  &apos;: copy above</source>
        <translation>%1&#xa0;: enregistrer  |  Entrée&#xa0;: suivant  |  %2&#xa0;: supprimer  |  %3&#xa0;: mémoriser  |  &apos;&#xa0;: recopier</translation>
    </message>
    <message>
        <source>Fields cleared</source>
        <translation>Champs effacés</translation>
    </message>
    <message>
        <source>Cannot memorize: source transaction has an invalid date</source>
        <translation>Mémorisation impossible&#xa0;: la date de l&apos;opération n&apos;est pas valide</translation>
    </message>
    <message>
        <source>Transaction memorized as recurring</source>
        <translation>Opération mémorisée comme récurrente</translation>
    </message>
    <message>
        <source>&amp;Insert New</source>
        <translation>&amp;Insérer une ligne</translation>
    </message>
    <message>
        <source>&amp;New Transaction...</source>
        <translation>&amp;Nouvelle opération...</translation>
    </message>
    <message>
        <source>Show &amp;Details...</source>
        <translation>Afficher les &amp;détails...</translation>
    </message>
    <message>
        <source>Edit &amp;Splits...</source>
        <translation>Modifier la &amp;ventilation...</translation>
    </message>
    <message>
        <source>&amp;Edit in Dialog...</source>
        <translation>&amp;Modifier dans une fenêtre...</translation>
    </message>
    <message>
        <source>Mark &amp;Uncleared</source>
        <translation>Dép&amp;ointer</translation>
    </message>
    <message>
        <source>Mark &amp;Cleared</source>
        <translation>&amp;Pointer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete Transaction</source>
        <translation>Supprimer l&apos;opération</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; for %2?</source>
        <translation>Supprimer «&#xa0;%1&#xa0;» (%2)&#xa0;?</translation>
    </message>
    <message>
        <source>Delete transfer &quot;%1&quot; for %2?

Both sides of the transfer will be deleted.</source>
        <translation>Supprimer le virement «&#xa0;%1&#xa0;» (%2)&#xa0;?

Les deux côtés du virement seront supprimés.</translation>
    </message>
</context>
<context>
    <name>ReportFill</name>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>ReportsScreen</name>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Compte&#xa0;:</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Ce mois-ci</translation>
    </message>
    <message>
        <source>Last Month</source>
        <translation>Mois dernier</translation>
    </message>
    <message>
        <source>This Quarter</source>
        <translation>Ce trimestre</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Trimestre dernier</translation>
    </message>
    <message>
        <source>This Year</source>
        <translation>Cette année</translation>
    </message>
    <message>
        <source>Last Year</source>
        <translation>Année dernière</translation>
    </message>
    <message>
        <source>Last 30 Days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>Last 90 Days</source>
        <translation>90 derniers jours</translation>
    </message>
    <message>
        <source>Last 12 Months</source>
        <translation>12 derniers mois</translation>
    </message>
    <message>
        <source>All Time</source>
        <translation>Toutes les dates</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisée</translation>
    </message>
    <message>
        <source>Period:</source>
        <translation>Période&#xa0;:</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exporter en CSV</translation>
    </message>
    <message>
        <source>Category Spending</source>
        <translation>Dépenses par catégorie</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Payee Summary</source>
        <translation>Résumé par tiers</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Tiers</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Tax Report</source>
        <translation>Rapport fiscal</translation>
    </message>
    <message>
        <source>Tax Code</source>
        <translation>Code fiscal</translation>
    </message>
    <message>
        <source>Income vs Expenses</source>
        <translation>Revenus et dépenses</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Revenus</translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation>Dépenses</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Trésorerie</translation>
    </message>
    <message>
        <source>Inflows</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Outflows</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>Year-over-Year</source>
        <translation>Comparatif annuel</translation>
    </message>
    <message>
        <source>Period 1</source>
        <translation>Période 1</translation>
    </message>
    <message>
        <source>Period 2</source>
        <translation>Période 2</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Account Summary</source>
        <translation>Résumé par compte</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Pointé</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Non pointé</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Mémo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>All Accounts</source>
        <translation>Tous les comptes</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>Fichiers CSV (*.csv)</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
</context>
<context>
    <name>SampleDataService</name>
    <message>
        <source>Main Checking</source>
        <translation>Compte courant</translation>
    </message>
    <message>
        <source>Riverbend Credit Union</source>
        <translation>Caisse Riverbend</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Épargne</translation>
    </message>
    <message>
        <source>Visa Rewards</source>
        <translation>Visa Fidélité</translation>
    </message>
    <message>
        <source>Summit Bank</source>
        <translation>Banque Summit</translation>
    </message>
    <message>
        <source>Brightpath Inc</source>
        <translation>Brightpath SA</translation>
    </message>
    <message>
        <source>Biweekly paycheck</source>
        <translation>Paie de la quinzaine</translation>
    </message>
    <message>
        <source>Pinecrest Apartments</source>
        <translation>Résidence Pinecrest</translation>
    </message>
    <message>
        <source>February rent</source>
        <translation>Loyer de février</translation>
    </message>
    <message>
        <source>March rent</source>
        <translation>Loyer de mars</translation>
    </message>
    <message>
        <source>Greenleaf Market</source>
        <translation>Marché Greenleaf</translation>
    </message>
    <message>
        <source>Weekly groceries</source>
        <translation>Courses de la semaine</translation>
    </message>
    <message>
        <source>Hilltop Gas</source>
        <translation>Station Hilltop</translation>
    </message>
    <message>
        <source>Fill up</source>
        <translation>Plein d&apos;essence</translation>
    </message>
    <message>
        <source>Lakeside Utilities</source>
        <translation>Lakeside Énergie et Eau</translation>
    </message>
    <message>
        <source>Electric bill</source>
        <translation>Facture d&apos;électricité</translation>
    </message>
    <message>
        <source>Water bill</source>
        <translation>Facture d&apos;eau</translation>
    </message>
    <message>
        <source>Streamline TV</source>
        <translation>Streamline TV</translation>
    </message>
    <message>
        <source>Monthly streaming</source>
        <translation>Streaming mensuel</translation>
    </message>
    <message>
        <source>Maplewood Diner</source>
        <translation>Bistrot Maplewood</translation>
    </message>
    <message>
        <source>Dinner out</source>
        <translation>Dîner au restaurant</translation>
    </message>
    <message>
        <source>Lunch</source>
        <translation>Déjeuner</translation>
    </message>
    <message>
        <source>Clearview Insurance</source>
        <translation>Assurances Clearview</translation>
    </message>
    <message>
        <source>Auto insurance</source>
        <translation>Assurance auto</translation>
    </message>
    <message>
        <source>Hope Community Church</source>
        <translation>Paroisse de l&apos;Espérance</translation>
    </message>
    <message>
        <source>Monthly donation</source>
        <translation>Don mensuel</translation>
    </message>
    <message>
        <source>NetConnect ISP</source>
        <translation>NetConnect</translation>
    </message>
    <message>
        <source>Internet service</source>
        <translation>Abonnement Internet</translation>
    </message>
    <message>
        <source>Ridgeline Pharmacy</source>
        <translation>Pharmacie Ridgeline</translation>
    </message>
    <message>
        <source>Prescriptions</source>
        <translation>Ordonnance</translation>
    </message>
    <message>
        <source>Coffee &amp; pastry</source>
        <translation>Café et viennoiserie</translation>
    </message>
    <message>
        <source>Transfer to Savings</source>
        <translation>Virement vers Épargne</translation>
    </message>
    <message>
        <source>Monthly savings</source>
        <translation>Épargne mensuelle</translation>
    </message>
    <message>
        <source>Transfer from Checking</source>
        <translation>Virement depuis Compte courant</translation>
    </message>
    <message>
        <source>Interest payment</source>
        <translation>Versement des intérêts</translation>
    </message>
    <message>
        <source>Dash Delivery</source>
        <translation>Dash Livraison</translation>
    </message>
    <message>
        <source>Food delivery</source>
        <translation>Livraison de repas</translation>
    </message>
    <message>
        <source>Gadget World</source>
        <translation>Gadget World</translation>
    </message>
    <message>
        <source>Phone case</source>
        <translation>Coque de téléphone</translation>
    </message>
    <message>
        <source>CloudWatch Plus</source>
        <translation>CloudWatch Plus</translation>
    </message>
    <message>
        <source>Cloud storage plan</source>
        <translation>Forfait stockage en ligne</translation>
    </message>
    <message>
        <source>Payment - Thank You</source>
        <translation>Paiement - Merci</translation>
    </message>
    <message>
        <source>Credit card payment</source>
        <translation>Règlement de la carte de crédit</translation>
    </message>
    <message>
        <source>Stellar Coffee</source>
        <translation>Cafés Stellar</translation>
    </message>
    <message>
        <source>Coffee beans</source>
        <translation>Café en grains</translation>
    </message>
    <message>
        <source>BookNest Online</source>
        <translation>Librairie BookNest</translation>
    </message>
    <message>
        <source>Programming books</source>
        <translation>Livres de programmation</translation>
    </message>
    <message>
        <source>TechVault</source>
        <translation>TechVault</translation>
    </message>
    <message>
        <source>USB hub</source>
        <translation>Hub USB</translation>
    </message>
    <message>
        <source>Monthly rent</source>
        <translation>Loyer mensuel</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Search payee, memo, check number...</source>
        <translation>Rechercher un tiers, un mémo, un n° de chèque...</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Période&#xa0;:</translation>
    </message>
    <message>
        <source>Cleared only</source>
        <translation>Pointées seules</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Compte&#xa0;:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>to</source>
        <translation>au</translation>
    </message>
    <message>
        <source>All Accounts</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
</context>
<context>
    <name>SettingsAboutPage</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Le registre numérique Pursewell pour les finances du foyer.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Source code</source>
        <translation>Code source</translation>
    </message>
    <message>
        <source>This application uses the Qt framework under the LGPL v3 license.</source>
        <translation>Cette application utilise le framework Qt sous licence LGPL v3.</translation>
    </message>
    <message>
        <source>Its icons are from the Material Icons font, under the Apache License 2.0.</source>
        <translation>Ses icônes proviennent de la police Material Icons, sous licence Apache 2.0.</translation>
    </message>
</context>
<context>
    <name>SettingsBackupSection</name>
    <message>
        <source>ZIP Files (*.zip)</source>
        <translation>Fichiers ZIP (*.zip)</translation>
    </message>
    <message>
        <source>Export Backup</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Import Backup</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Backup &amp; Restore</source>
        <translation>Sauvegarde et restauration</translation>
    </message>
    <message>
        <source>Save or restore your data to a portable backup file.</source>
        <translation>Enregistrez vos données dans un fichier de sauvegarde transportable, ou restaurez-les.</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Exportation...</translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Sauvegarde terminée</translation>
    </message>
    <message>
        <source>Backup saved to:
%1</source>
        <translation>Sauvegarde enregistrée dans&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Backup Failed</source>
        <translation>Échec de la sauvegarde</translation>
    </message>
    <message>
        <source>Could not write to:
%1</source>
        <translation>Impossible d&apos;écrire dans&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Import Failed</source>
        <translation>Échec de l&apos;importation</translation>
    </message>
    <message>
        <source>Could not read file.</source>
        <translation>Impossible de lire le fichier.</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Importation...</translation>
    </message>
    <message>
        <source>Replace all with backup data</source>
        <translation>Tout remplacer par la sauvegarde</translation>
    </message>
    <message>
        <source>Keep newer (compare timestamps)</source>
        <translation>Garder le plus récent (selon la date)</translation>
    </message>
    <message>
        <source>Skip existing items</source>
        <translation>Ignorer les existants</translation>
    </message>
    <message>
        <source>Import Mode</source>
        <translation>Mode d&apos;importation</translation>
    </message>
    <message>
        <source>How should existing data be handled?</source>
        <translation>Que faire des données existantes&#xa0;?</translation>
    </message>
    <message>
        <source>Imported %1 items, skipped %2.</source>
        <translation>Éléments importés&#xa0;: %1, ignorés&#xa0;: %2.</translation>
    </message>
    <message numerus="yes">
        <source>

%n error(s) occurred.</source>
        <translation>
            <numerusform>

%n erreur s&apos;est produite.</numerusform>
            <numerusform>

%n erreurs se sont produites.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import Complete</source>
        <translation>Importation terminée</translation>
    </message>
</context>
<context>
    <name>SettingsDeletedAccounts</name>
    <message>
        <source>Restore Selected</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Deleted Accounts</source>
        <translation>Comptes supprimés</translation>
    </message>
    <message>
        <source>Accounts you&apos;ve deleted can be restored here.</source>
        <translation>Restaurez ici les comptes que vous avez supprimés.</translation>
    </message>
</context>
<context>
    <name>SettingsGeneralPage</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Control how Kestrelwood Pursewell looks.</source>
        <translation>Réglez l&apos;aspect de Kestrelwood Pursewell.</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Extra Large</source>
        <translation>Très grande</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Week starts on</source>
        <translation>Début de semaine</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Regional</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Date and calendar preferences.</source>
        <translation>Préférences de date et de calendrier.</translation>
    </message>
</context>
<context>
    <name>SettingsNavigation</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Data &amp; Sync</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>SettingsRegisterPage</name>
    <message>
        <source>Register</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>How transactions appear in the register.</source>
        <translation>Présentation des opérations dans le registre.</translation>
    </message>
    <message>
        <source>Two-line rows</source>
        <translation>Lignes doubles</translation>
    </message>
    <message>
        <source>Show memo on a second line below the payee.</source>
        <translation>Afficher le mémo sur une deuxième ligne, sous le tiers.</translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Tri</translation>
    </message>
    <message>
        <source>Control the order of transactions in the register.</source>
        <translation>Choisissez l&apos;ordre des opérations dans le registre.</translation>
    </message>
    <message>
        <source>Show newest transactions first</source>
        <translation>Les opérations récentes en premier</translation>
    </message>
    <message>
        <source>When enabled, the most recent transactions appear at the top.</source>
        <translation>Si cette option est activée, les opérations les plus récentes apparaissent en haut.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Data &amp; Sync</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Langue modifiée</translation>
    </message>
    <message>
        <source>The new language will take effect the next time you start Kestrelwood Pursewell.</source>
        <translation>La nouvelle langue sera utilisée au prochain démarrage de Kestrelwood Pursewell.</translation>
    </message>
    <message>
        <source>Restore Failed</source>
        <translation>Échec de la restauration</translation>
    </message>
    <message>
        <source>The account could not be restored.</source>
        <translation>Impossible de restaurer le compte.</translation>
    </message>
</context>
<context>
    <name>SettingsSyncSection</name>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Keep your pursewell in sync across all your devices.</source>
        <translation>Gardez votre Pursewell synchronisé sur tous vos appareils.</translation>
    </message>
    <message>
        <source>Sync Now</source>
        <translation>Synchroniser</translation>
    </message>
    <message>
        <source>Force Full Sync</source>
        <translation>Synchro complète</translation>
    </message>
    <message>
        <source>Not signed in.
Sign in via File › Kestrelwood Account to enable sync.</source>
        <translation>Non connecté.
Connectez-vous via le menu Fichier › Compte Kestrelwood pour activer la synchronisation.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Signed in as:&lt;/b&gt; %1&lt;br&gt;&lt;b&gt;Status:&lt;/b&gt; &lt;span style=&quot;color:%2&quot;&gt;%3&lt;/span&gt;</source>
        <translation>&lt;b&gt;Connecté en tant que&#xa0;:&lt;/b&gt; %1&lt;br&gt;&lt;b&gt;État&#xa0;:&lt;/b&gt; &lt;span style=&quot;color:%2&quot;&gt;%3&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Never synced</source>
        <translation>Jamais synchronisé</translation>
    </message>
    <message>
        <source>Last synced: %1</source>
        <translation>Dernière synchro&#xa0;: %1</translation>
    </message>
    <message>
        <source>
Error: %1</source>
        <translation>
Erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>This will re-upload every local row to the server and re-download all server data. Use this if data appears out of sync between devices.

Continue?</source>
        <translation>Toutes les lignes locales seront renvoyées au serveur et toutes les données du serveur seront téléchargées à nouveau. À utiliser si les données diffèrent d&apos;un appareil à l&apos;autre.

Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation...</translation>
    </message>
</context>
<context>
    <name>SplitEditorDialog</name>
    <message>
        <source>Split Transaction</source>
        <translation>Ventiler l&apos;opération</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total&#xa0;: %1</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Mémo</translation>
    </message>
    <message>
        <source>+ Add Line</source>
        <translation>+ Ajouter</translation>
    </message>
    <message>
        <source>- Remove</source>
        <translation>- Retirer</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>Remaining: %1</source>
        <translation>Reste&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s)</source>
        <translation>
            <numerusform>%n compte</numerusform>
            <numerusform>%n comptes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  •  %n recurring due</source>
        <translation>
            <numerusform>  •  %n récurrente à échéance</numerusform>
            <numerusform>  •  %n récurrentes à échéance</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransactionDetailsDialog</name>
    <message>
        <source>Transaction Details</source>
        <translation>Détails de l&apos;opération</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Tiers&#xa0;:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Montant&#xa0;:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Mémo&#xa0;:</translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation>N° de chèque&#xa0;:</translation>
    </message>
    <message>
        <source>Transfer to:</source>
        <translation>Virement vers&#xa0;:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>—Split—</source>
        <translation>—Ventilée—</translation>
    </message>
    <message>
        <source>Split lines</source>
        <translation>Ventilation</translation>
    </message>
    <message>
        <source>(no split lines on record)</source>
        <translation>(aucune ligne de ventilation enregistrée)</translation>
    </message>
    <message>
        <source>(uncategorized)</source>
        <translation>(sans catégorie)</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Entered: %1</source>
        <translation>Saisie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Last modified: %1</source>
        <translation>Modifiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Supprimer...</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Pointée</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>Non pointée</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Rapprochée</translation>
    </message>
    <message>
        <source>Mark Uncleared</source>
        <translation>Dépointer</translation>
    </message>
    <message>
        <source>Mark Cleared</source>
        <translation>Pointer</translation>
    </message>
</context>
<context>
    <name>TransactionFormDialog</name>
    <message>
        <source>New Transaction</source>
        <translation>Nouvelle opération</translation>
    </message>
    <message>
        <source>Edit Transaction</source>
        <translation>Modifier l&apos;opération</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Tiers&#xa0;:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Montant&#xa0;:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Mémo&#xa0;:</translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation>N° de chèque&#xa0;:</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Pointée</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Start typing to search payees...</source>
        <translation>Tapez pour rechercher un tiers...</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>Split this transaction across multiple categories with their own amounts and memos.</source>
        <translation>Ventiler cette opération entre plusieurs catégories, chacune avec son montant et son mémo.</translation>
    </message>
    <message>
        <source>Clear split</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Drop the split and return to a single-category transaction.</source>
        <translation>Effacer la ventilation et revenir à une seule catégorie.</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <source>—Split—</source>
        <translation>—Ventilée—</translation>
    </message>
    <message>
        <source>Edit splits...</source>
        <translation>Ventilation...</translation>
    </message>
    <message>
        <source>Split...</source>
        <translation>Ventiler...</translation>
    </message>
</context>
<context>
    <name>WelcomeScreen</name>
    <message>
        <source>Your session has ended. Sign back in to keep syncing.</source>
        <translation>Votre session a pris fin. Reconnectez-vous pour continuer la synchronisation.</translation>
    </message>
    <message>
        <source>Works fully offline. Your data stays on this device.</source>
        <translation>Fonctionne entièrement hors ligne. Vos données restent sur cet appareil.</translation>
    </message>
    <message>
        <source>How it works</source>
        <translation>Mode d&apos;emploi</translation>
    </message>
    <message>
        <source>Add an account (checking, savings, credit card, or any account you&apos;d like to track).</source>
        <translation>Ajoutez un compte (compte courant, épargne, carte de crédit ou tout autre compte à suivre).</translation>
    </message>
    <message>
        <source>Record transactions as you spend.</source>
        <translation>Saisissez les opérations au fil de vos dépenses.</translation>
    </message>
    <message>
        <source>Reconcile when your statement arrives.</source>
        <translation>Rapprochez le compte à l&apos;arrivée du relevé.</translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation>Heureux de vous revoir</translation>
    </message>
    <message>
        <source>Welcome to
Kestrelwood Pursewell</source>
        <translation>Bienvenue dans
Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Sign in to keep your data synced across devices.</source>
        <translation>Connectez-vous pour garder vos données synchronisées sur tous vos appareils.</translation>
    </message>
    <message>
        <source>A digital pursewell register.</source>
        <translation>Le registre numérique Pursewell.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Already have an account? Sign In</source>
        <translation>Déjà un compte&#xa0;? Se connecter</translation>
    </message>
    <message>
        <source>Create a different account</source>
        <translation>Créer un autre compte</translation>
    </message>
    <message>
        <source>Create Your First Account</source>
        <translation>Créer votre premier compte</translation>
    </message>
</context>
</TS>

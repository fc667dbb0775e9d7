<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AccountFormDialog</name>
    <message>
        <source>Opening Balance</source>
        <translation>Saldo inicial</translation>
    </message>
    <message>
        <source>New Account</source>
        <translation>Nueva cuenta</translation>
    </message>
    <message>
        <source>Edit Account</source>
        <translation>Editar cuenta</translation>
    </message>
    <message>
        <source>Account name</source>
        <translation>Nombre de la cuenta</translation>
    </message>
    <message>
        <source>Bank name (optional)</source>
        <translation>Nombre del banco (opcional)</translation>
    </message>
    <message>
        <source>Last 4 digits (optional)</source>
        <translation>Últimos 4 dígitos (opcional)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Tipo:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>Starting &amp;Balance:</source>
        <translation>&amp;Saldo inicial:</translation>
    </message>
    <message>
        <source>&amp;As of:</source>
        <translation>A &amp;fecha de:</translation>
    </message>
    <message>
        <source>&amp;Institution:</source>
        <translation>&amp;Institución:</translation>
    </message>
    <message>
        <source>Account &amp;Number:</source>
        <translation>Número de &amp;cuenta:</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
</context>
<context>
    <name>AccountSharingService</name>
    <message>
        <source>Failed to share account (HTTP %1)</source>
        <translation>No se pudo compartir la cuenta (HTTP %1)</translation>
    </message>
</context>
<context>
    <name>AccountTypeName</name>
    <message>
        <source>Checking</source>
        <translation>Cuenta corriente</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Cuenta de ahorros</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Tarjeta de crédito</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Efectivo</translation>
    </message>
    <message>
        <source>Investment</source>
        <translation>Inversión</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otra</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Database Error</source>
        <translation>Error de la base de datos</translation>
    </message>
    <message>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>No se pudo iniciar la base de datos.

Carpeta de datos: %1

Compruebe los permisos de los archivos e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>BackupService</name>
    <message>
        <source>Failed to open ZIP archive</source>
        <translation>No se pudo abrir el archivo ZIP</translation>
    </message>
    <message>
        <source>Invalid backup: missing manifest.json</source>
        <translation>Copia de seguridad no válida: falta manifest.json</translation>
    </message>
    <message>
        <source>Unsupported backup version: %1</source>
        <translation>Versión de copia de seguridad no admitida: %1</translation>
    </message>
    <message>
        <source>%1: unexpected error</source>
        <translation>%1: error inesperado</translation>
    </message>
    <message>
        <source>%1: invalid JSON</source>
        <translation>%1: JSON no válido</translation>
    </message>
    <message>
        <source>%1: unknown column &quot;%2&quot;</source>
        <translation>%1: columna desconocida «%2»</translation>
    </message>
</context>
<context>
    <name>CategoriesScreen</name>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Search categories...</source>
        <translation>Buscar categorías...</translation>
    </message>
    <message>
        <source>+ New Category</source>
        <translation>+ Nueva categoría</translation>
    </message>
    <message>
        <source>&amp;New Category</source>
        <translation>&amp;Nueva categoría</translation>
    </message>
    <message>
        <source>Add &amp;Subcategory</source>
        <translation>Agregar &amp;subcategoría</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Delete Category</source>
        <translation>Eliminar categoría</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Transactions using this category will become uncategorized.</source>
        <translation>¿Eliminar &quot;%1&quot;? Las transacciones que usan esta categoría quedarán sin categoría.</translation>
    </message>
</context>
<context>
    <name>CategoryFormDialog</name>
    <message>
        <source>Edit Category</source>
        <translation>Editar categoría</translation>
    </message>
    <message>
        <source>New Category</source>
        <translation>Nueva categoría</translation>
    </message>
    <message>
        <source>New Subcategory</source>
        <translation>Nueva subcategoría</translation>
    </message>
    <message>
        <source>Category name</source>
        <translation>Nombre de la categoría</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Gasto</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Ingreso</translation>
    </message>
    <message>
        <source>Tax-relevant</source>
        <translation>Con efecto fiscal</translation>
    </message>
    <message>
        <source>Mark this category for inclusion in tax-time reports.</source>
        <translation>Marque esta categoría para incluirla en los informes fiscales.</translation>
    </message>
    <message>
        <source>e.g. charitable_contributions, mortgage_interest</source>
        <translation>p. ej., charitable_contributions, mortgage_interest</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Tipo:</translation>
    </message>
    <message>
        <source>Tax &amp;Code:</source>
        <translation>Código &amp;fiscal:</translation>
    </message>
    <message>
        <source>&amp;Parent:</source>
        <translation>Categoría su&amp;perior:</translation>
    </message>
</context>
<context>
    <name>CategoryService</name>
    <message>
        <source>Charitable Donations</source>
        <translation>Donaciones benéficas</translation>
    </message>
    <message>
        <source>Medical Expenses</source>
        <translation>Gastos médicos</translation>
    </message>
    <message>
        <source>Business Expenses</source>
        <translation>Gastos profesionales</translation>
    </message>
    <message>
        <source>Home Office</source>
        <translation>Oficina en casa</translation>
    </message>
    <message>
        <source>Education Expenses</source>
        <translation>Gastos educativos</translation>
    </message>
    <message>
        <source>State &amp; Local Taxes</source>
        <translation>Impuestos estatales y locales</translation>
    </message>
    <message>
        <source>Mortgage Interest</source>
        <translation>Intereses hipotecarios</translation>
    </message>
    <message>
        <source>Property Tax</source>
        <translation>Impuesto inmobiliario</translation>
    </message>
    <message>
        <source>Housing</source>
        <translation>Vivienda</translation>
    </message>
    <message>
        <source>Rent/Mortgage Payment</source>
        <translation>Alquiler/Hipoteca</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Mantenimiento</translation>
    </message>
    <message>
        <source>HOA</source>
        <translation>Comunidad/Condominio</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Servicios del hogar</translation>
    </message>
    <message>
        <source>Electric</source>
        <translation>Electricidad</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Agua</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Transportation</source>
        <translation>Transporte</translation>
    </message>
    <message>
        <source>Gas/Fuel</source>
        <translation>Combustible</translation>
    </message>
    <message>
        <source>Car Payment</source>
        <translation>Cuota del automóvil</translation>
    </message>
    <message>
        <source>Auto Insurance</source>
        <translation>Seguro del automóvil</translation>
    </message>
    <message>
        <source>Public Transit</source>
        <translation>Transporte público</translation>
    </message>
    <message>
        <source>Groceries</source>
        <translation>Supermercado</translation>
    </message>
    <message>
        <source>Dining &amp; Restaurants</source>
        <translation>Comidas y restaurantes</translation>
    </message>
    <message>
        <source>Personal Care</source>
        <translation>Cuidado personal</translation>
    </message>
    <message>
        <source>Pets</source>
        <translation>Mascotas</translation>
    </message>
    <message>
        <source>Subscriptions</source>
        <translation>Suscripciones</translation>
    </message>
    <message>
        <source>Gifts</source>
        <translation>Regalos</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Entretenimiento</translation>
    </message>
    <message>
        <source>Streaming</source>
        <translation>Streaming</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Espectáculos</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>Compras</translation>
    </message>
    <message>
        <source>Clothing</source>
        <translation>Ropa</translation>
    </message>
    <message>
        <source>Electronics</source>
        <translation>Electrónica</translation>
    </message>
    <message>
        <source>Household</source>
        <translation>Artículos del hogar</translation>
    </message>
    <message>
        <source>Insurance</source>
        <translation>Seguros</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>Life</source>
        <translation>Vida</translation>
    </message>
    <message>
        <source>Home/Renters</source>
        <translation>Hogar/Alquiler</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automóvil</translation>
    </message>
    <message>
        <source>Fees &amp; Charges</source>
        <translation>Comisiones y cargos</translation>
    </message>
    <message>
        <source>Bank Fees</source>
        <translation>Comisiones bancarias</translation>
    </message>
    <message>
        <source>ATM Fees</source>
        <translation>Comisiones de cajero</translation>
    </message>
    <message>
        <source>Late Fees</source>
        <translation>Recargos por mora</translation>
    </message>
    <message>
        <source>Salary / Wages</source>
        <translation>Sueldo / Salario</translation>
    </message>
    <message>
        <source>Interest Income</source>
        <translation>Intereses cobrados</translation>
    </message>
    <message>
        <source>Dividend Income</source>
        <translation>Dividendos</translation>
    </message>
    <message>
        <source>Rental Income</source>
        <translation>Alquileres cobrados</translation>
    </message>
    <message>
        <source>Freelance / Consulting</source>
        <translation>Honorarios / Consultoría</translation>
    </message>
    <message>
        <source>Refunds</source>
        <translation>Reembolsos</translation>
    </message>
    <message>
        <source>Gifts Received</source>
        <translation>Regalos recibidos</translation>
    </message>
    <message>
        <source>Other Income</source>
        <translation>Otros ingresos</translation>
    </message>
</context>
<context>
    <name>CategoryTreeModel</name>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Tax Code</source>
        <translation>Código fiscal</translation>
    </message>
</context>
<context>
    <name>ComparisonBar</name>
    <message>
        <source>This Year vs Last Year</source>
        <translation>Este año frente al anterior</translation>
    </message>
    <message>
        <source>Last Year vs Year Before</source>
        <translation>Año pasado frente al anterior</translation>
    </message>
    <message>
        <source>This Quarter vs Last Quarter</source>
        <translation>Este trimestre frente al anterior</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Compare:</source>
        <translation>Comparar:</translation>
    </message>
    <message>
        <source>P1:</source>
        <translation>P1:</translation>
    </message>
    <message>
        <source>P2:</source>
        <translation>P2:</translation>
    </message>
    <message>
        <source>P1: %1 – %2    P2: %3 – %4</source>
        <translation>P1: %1 – %2    P2: %3 – %4</translation>
    </message>
    <message>
        <source>P1 from</source>
        <translation>P1 desde</translation>
    </message>
    <message>
        <source>P1 to</source>
        <translation>P1 hasta</translation>
    </message>
    <message>
        <source>P2 from</source>
        <translation>P2 desde</translation>
    </message>
    <message>
        <source>P2 to</source>
        <translation>P2 hasta</translation>
    </message>
</context>
<context>
    <name>CsvMappingForm</name>
    <message>
        <source>CSV Column Mapping:</source>
        <translation>Asignación de columnas CSV:</translation>
    </message>
    <message>
        <source>First row is header</source>
        <translation>La primera fila es el encabezado</translation>
    </message>
    <message>
        <source>Date column:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Payee column:</source>
        <translation>Beneficiario:</translation>
    </message>
    <message>
        <source>Amount column:</source>
        <translation>Importe:</translation>
    </message>
    <message>
        <source>Memo column:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Category column:</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>Date format:</source>
        <translation>Formato de fecha:</translation>
    </message>
    <message>
        <source>Auto-detect</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Col %1: %2</source>
        <translation>Col. %1: %2</translation>
    </message>
    <message>
        <source>Col %1</source>
        <translation>Col. %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>DateField</name>
    <message>
        <source>Open calendar (F4)</source>
        <translation>Abrir calendario (F4)</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>You can also import transactions from a CSV file via File › Import.</source>
        <translation>También puede importar transacciones de un archivo CSV desde Archivo › Importar.</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Crear cuenta</translation>
    </message>
    <message>
        <source>Welcome to Kestrelwood Pursewell</source>
        <translation>Bienvenido a Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Create your first account to get started.</source>
        <translation>Cree su primera cuenta para empezar.</translation>
    </message>
</context>
<context>
    <name>ImportScreen</name>
    <message>
        <source>Import Transactions</source>
        <translation>Importar transacciones</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Cuenta:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Archivo:</translation>
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
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Ningún archivo seleccionado</translation>
    </message>
    <message>
        <source>Select QIF File(s)</source>
        <translation>Seleccionar archivos QIF</translation>
    </message>
    <message>
        <source>QIF Files (*.qif)</source>
        <translation>Archivos QIF (*.qif)</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n archivo seleccionado</numerusform>
            <numerusform>%n archivos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>Analyzing QIF file(s)...</source>
        <translation>Analizando archivos QIF...</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>Seleccionar archivo</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*)</source>
        <translation>Archivos CSV (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>No target account</source>
        <translation>Sin cuenta de destino</translation>
    </message>
    <message>
        <source>Pick an account to import into, or create one now.</source>
        <translation>Elija la cuenta de destino de la importación o cree una ahora.</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Importando...</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
</context>
<context>
    <name>ImportService</name>
    <message>
        <source>%1 (no account header)</source>
        <translation>%1 (sin encabezado de cuenta)</translation>
    </message>
    <message>
        <source>Imported transaction</source>
        <translation>Transacción importada</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>Import failed.</source>
        <translation>Error al importar.</translation>
    </message>
    <message>
        <source>A database error stopped the import and all changes were rolled back. No transactions were added.</source>
        <translation>Un error de la base de datos detuvo la importación y se deshicieron todos los cambios. No se agregó ninguna transacción.</translation>
    </message>
    <message>
        <source>Import complete!</source>
        <translation>¡Importación terminada!</translation>
    </message>
    <message numerus="yes">
        <source>%n transaction(s) imported</source>
        <translation>
            <numerusform>%n transacción importada</numerusform>
            <numerusform>%n transacciones importadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n transfer(s) linked across accounts</source>
        <translation>
            <numerusform>%n transferencia vinculada entre cuentas</numerusform>
            <numerusform>%n transferencias vinculadas entre cuentas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  (including %n linked to previously imported row(s))</source>
        <translation>
            <numerusform>  (incluida %n vinculada a una fila importada antes)</numerusform>
            <numerusform>  (incluidas %n vinculadas a filas importadas antes)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n duplicate(s) skipped</source>
        <translation>
            <numerusform>%n duplicado omitido</numerusform>
            <numerusform>%n duplicados omitidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unparseable)</source>
        <translation>
            <numerusform>%n registro omitido (ilegible)</numerusform>
            <numerusform>%n registros omitidos (ilegibles)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n metadata record(s) skipped</source>
        <translation>
            <numerusform>%n registro de metadatos omitido</numerusform>
            <numerusform>%n registros de metadatos omitidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (unmapped source account)</source>
        <translation>
            <numerusform>%n registro omitido (cuenta de origen sin asignar)</numerusform>
            <numerusform>%n registros omitidos (cuenta de origen sin asignar)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) skipped (database error — see log)</source>
        <translation>
            <numerusform>%n registro omitido (error de la base de datos — consulte el archivo de registro)</numerusform>
            <numerusform>%n registros omitidos (error de la base de datos — consulte el archivo de registro)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KestAccount::AccountScreen</name>
    <message>
        <source>Kestrelwood Account</source>
        <translation>Cuenta Kestrelwood</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Data &amp; Privacy</source>
        <translation>Datos y privacidad</translation>
    </message>
</context>
<context>
    <name>KestAccount::DevicesPage</name>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Registered Devices</source>
        <translation>Dispositivos registrados</translation>
    </message>
    <message>
        <source>Devices that have synced with your account.</source>
        <translation>Dispositivos que se han sincronizado con su cuenta.</translation>
    </message>
    <message>
        <source>No devices registered.</source>
        <translation>No hay dispositivos registrados.</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>Dispositivo desconocido</translation>
    </message>
    <message>
        <source>  ·  v%1</source>
        <translation>  ·  v%1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Quitar dispositivo</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>¿Quitar %1?</translation>
    </message>
    <message>
        <source>Device removed.</source>
        <translation>Se quitó el dispositivo.</translation>
    </message>
</context>
<context>
    <name>KestAccount::GroupPage</name>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>%1 of %2 seats used</source>
        <translation>%1 de %2 plazas ocupadas</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Miembros</translation>
    </message>
    <message>
        <source>No Group</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>You&apos;re not part of a group. The group owner can invite you, or you can join with an invite code.</source>
        <translation>No forma parte de ningún grupo. El propietario de un grupo puede invitarle, o puede unirse con un código de invitación.</translation>
    </message>
    <message>
        <source>Join with Invite Code</source>
        <translation>Unirse con un código</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Propietario</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Pending Invitations</source>
        <translation>Invitaciones pendientes</translation>
    </message>
    <message>
        <source>Invite code: %1</source>
        <translation>Código de invitación: %1</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Revocar</translation>
    </message>
    <message>
        <source>Invite Members</source>
        <translation>Invitar a miembros</translation>
    </message>
    <message>
        <source>Invite by Email</source>
        <translation>Invitar por correo</translation>
    </message>
    <message>
        <source>Generate Invite Code</source>
        <translation>Generar código</translation>
    </message>
    <message>
        <source>Leave Group</source>
        <translation>Salir del grupo</translation>
    </message>
    <message>
        <source>Join Group</source>
        <translation>Unirse a un grupo</translation>
    </message>
    <message>
        <source>Enter invite code:</source>
        <translation>Indique el código de invitación:</translation>
    </message>
    <message>
        <source>Invalid or expired invite code.</source>
        <translation>El código de invitación no es válido o ha caducado.</translation>
    </message>
    <message>
        <source>Joined group.</source>
        <translation>Se ha unido al grupo.</translation>
    </message>
    <message>
        <source>Remove Member</source>
        <translation>Quitar miembro</translation>
    </message>
    <message>
        <source>Remove %1 from the group?</source>
        <translation>¿Quitar a %1 del grupo?</translation>
    </message>
    <message>
        <source>%1 removed.</source>
        <translation>Se quitó a %1 del grupo.</translation>
    </message>
    <message>
        <source>Invitation revoked.</source>
        <translation>Invitación revocada.</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>Dirección de correo electrónico:</translation>
    </message>
    <message>
        <source>Failed to send invitation.</source>
        <translation>No se pudo enviar la invitación.</translation>
    </message>
    <message>
        <source>Invitation sent.</source>
        <translation>Invitación enviada.</translation>
    </message>
    <message>
        <source>Failed to generate code.</source>
        <translation>No se pudo generar el código.</translation>
    </message>
    <message>
        <source>Invite Code</source>
        <translation>Código de invitación</translation>
    </message>
    <message>
        <source>Share this code with the person you want to invite:

%1</source>
        <translation>Comparta este código con la persona a la que quiera invitar:

%1</translation>
    </message>
    <message>
        <source>Leave this group? You will lose access to shared data.</source>
        <translation>¿Salir de este grupo? Perderá el acceso a los datos compartidos.</translation>
    </message>
    <message>
        <source>Left group.</source>
        <translation>Ha salido del grupo.</translation>
    </message>
</context>
<context>
    <name>KestAccount::PrivacyPage</name>
    <message>
        <source>Data &amp; Privacy</source>
        <translation>Datos y privacidad</translation>
    </message>
    <message>
        <source>Danger Zone</source>
        <translation>Zona de peligro</translation>
    </message>
    <message>
        <source>Permanently delete your account. This cannot be undone after 30 days.</source>
        <translation>Elimine su cuenta de forma permanente. Pasados 30 días, no se puede deshacer.</translation>
    </message>
    <message>
        <source>Delete Account</source>
        <translation>Eliminar cuenta</translation>
    </message>
    <message>
        <source>You are the group owner. Transfer ownership or remove all members before deleting your account.</source>
        <translation>El grupo es de su propiedad. Transfiera la propiedad o quite a todos los miembros antes de eliminar su cuenta.</translation>
    </message>
    <message>
        <source>This will schedule your account for permanent deletion after 30 days.

Type DELETE to confirm:</source>
        <translation>Su cuenta quedará programada para eliminarse de forma permanente dentro de 30 días.

Escriba DELETE para confirmar:</translation>
    </message>
    <message>
        <source>Failed to delete account.</source>
        <translation>No se pudo eliminar la cuenta.</translation>
    </message>
    <message>
        <source>Account Scheduled for Deletion</source>
        <translation>Eliminación de la cuenta programada</translation>
    </message>
    <message>
        <source>Your account will be permanently deleted in 30 days. You can recover it by signing in before then.</source>
        <translation>Su cuenta se eliminará de forma permanente dentro de 30 días. Puede recuperarla si inicia sesión antes.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ProfilePage</name>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Personal Information</source>
        <translation>Información personal</translation>
    </message>
    <message>
        <source>Edit Display Name</source>
        <translation>Editar nombre visible</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Change your account password.</source>
        <translation>Cambie la contraseña de su cuenta.</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(sin indicar)</translation>
    </message>
    <message>
        <source>Display name:</source>
        <translation>Nombre visible:</translation>
    </message>
    <message>
        <source>Failed to update profile.</source>
        <translation>No se pudo actualizar el perfil.</translation>
    </message>
    <message>
        <source>Display name updated.</source>
        <translation>Nombre visible actualizado.</translation>
    </message>
    <message>
        <source>Current password:</source>
        <translation>Contraseña actual:</translation>
    </message>
    <message>
        <source>New password (min 8 characters):</source>
        <translation>Contraseña nueva (mín. 8 caracteres):</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>La contraseña debe tener al menos 8 caracteres.</translation>
    </message>
    <message>
        <source>Confirm new password:</source>
        <translation>Confirme la contraseña nueva:</translation>
    </message>
    <message>
        <source>Passwords do not match.</source>
        <translation>Las contraseñas no coinciden.</translation>
    </message>
    <message>
        <source>Password changed.</source>
        <translation>Contraseña cambiada.</translation>
    </message>
    <message>
        <source>Failed to change password.</source>
        <translation>No se pudo cambiar la contraseña.</translation>
    </message>
</context>
<context>
    <name>KestAccount::RelativeTime</name>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Active now</source>
        <translation>Activo ahora</translation>
    </message>
    <message>
        <source>%1m ago</source>
        <translation>Hace %1 min</translation>
    </message>
    <message>
        <source>%1h ago</source>
        <translation>Hace %1 h</translation>
    </message>
    <message>
        <source>%1d ago</source>
        <translation>Hace %1 d</translation>
    </message>
</context>
<context>
    <name>KestAccount::SecurityPage</name>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Active Sessions</source>
        <translation>Sesiones activas</translation>
    </message>
    <message>
        <source>Sessions currently signed in to your account.</source>
        <translation>Sesiones abiertas ahora en su cuenta.</translation>
    </message>
    <message>
        <source>No active sessions.</source>
        <translation>No hay sesiones activas.</translation>
    </message>
    <message>
        <source>Unknown client</source>
        <translation>Cliente desconocido</translation>
    </message>
    <message>
        <source>This session</source>
        <translation>Esta sesión</translation>
    </message>
    <message>
        <source>  ·  %1</source>
        <translation>  ·  %1</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actual</translation>
    </message>
    <message>
        <source>Revoke</source>
        <translation>Revocar</translation>
    </message>
    <message>
        <source>Session revoked.</source>
        <translation>Sesión revocada.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ShareMembersDialog</name>
    <message>
        <source>Could not share with %1.</source>
        <translation>No se pudo compartir con %1.</translation>
    </message>
    <message>
        <source>Could not remove %1.</source>
        <translation>No se pudo quitar el acceso a %1.</translation>
    </message>
</context>
<context>
    <name>KestAccount::ShareWords</name>
    <message>
        <source>People with access</source>
        <translation>Personas con acceso</translation>
    </message>
    <message>
        <source>Add people</source>
        <translation>Agregar personas</translation>
    </message>
    <message>
        <source>Not shared with anyone yet.</source>
        <translation>Aún no se comparte con nadie.</translation>
    </message>
    <message>
        <source>You don&apos;t have a family group yet.</source>
        <translation>Aún no tiene un grupo familiar.</translation>
    </message>
    <message>
        <source>All group members already have access</source>
        <translation>Todos los miembros del grupo ya tienen acceso</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Remove access</source>
        <translation>Quitar acceso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Remove access?</source>
        <translation>¿Quitar acceso?</translation>
    </message>
    <message>
        <source>%1 will no longer have access. Continue?</source>
        <translation>%1 dejará de tener acceso. ¿Continuar?</translation>
    </message>
</context>
<context>
    <name>KestUpdate::Flow</name>
    <message>
        <source>No release notes available for %1 %2</source>
        <translation>No hay notas de la versión para %1 %2</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>%1 is up to date (version %2)</source>
        <translation>%1 está actualizado (versión %2)</translation>
    </message>
    <message>
        <source>Update check failed: %1</source>
        <translation>Error al buscar actualizaciones: %1</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Cargando las notas de la versión…</translation>
    </message>
</context>
<context>
    <name>KestUpdate::NotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
</context>
<context>
    <name>KestUpdate::UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>A new version of %1 is available.</source>
        <translation>Hay disponible una nueva versión de %1.</translation>
    </message>
    <message>
        <source>You have version %1. The latest version is %2.</source>
        <translation>Tiene la versión %1. La más reciente es la %2.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Cargando las notas de la versión…</translation>
    </message>
    <message>
        <source>*Release notes are not available for this version.*</source>
        <translation>*No hay notas disponibles para esta versión.*</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>KestUpdate::WhatsNewDialog</name>
    <message>
        <source>What&apos;s New in %1 %2</source>
        <translation>Novedades de %1 %2</translation>
    </message>
    <message>
        <source>What&apos;s new in %1 %2</source>
        <translation>Novedades de %1 %2</translation>
    </message>
    <message>
        <source>You are running version %1</source>
        <translation>Está usando la versión %1</translation>
    </message>
    <message>
        <source>Download %1</source>
        <translation>Descargar %1</translation>
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
            <numerusform>%n transacción recurrente registrada automáticamente</numerusform>
            <numerusform>%n transacciones recurrentes registradas automáticamente</numerusform>
        </translation>
    </message>
    <message>
        <source>No accounts</source>
        <translation>Sin cuentas</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>New Account...</source>
        <translation>Nueva cuenta...</translation>
    </message>
    <message>
        <source>Edit &quot;%1&quot;...</source>
        <translation>Editar &quot;%1&quot;...</translation>
    </message>
    <message>
        <source>Reconcile...</source>
        <translation>Conciliar...</translation>
    </message>
    <message>
        <source>Reconciliation History...</source>
        <translation>Historial de conciliaciones...</translation>
    </message>
    <message>
        <source>Rename Payees...</source>
        <translation>Renombrar beneficiarios...</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Eliminar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Select an account first</source>
        <translation>Seleccione primero una cuenta</translation>
    </message>
    <message>
        <source>Delete Account</source>
        <translation>Eliminar cuenta</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;?

All transactions, recurring entries, and reconciliation history for this account will be removed. You can restore it from Preferences → Data &amp; Sync.</source>
        <translation>¿Eliminar &quot;%1&quot;?

Se quitarán todas las transacciones, las recurrentes y el historial de conciliaciones de esta cuenta. Podrá restaurarla desde Preferencias → Datos.</translation>
    </message>
    <message>
        <source>Sample data is already loaded.</source>
        <translation>Los datos de ejemplo ya están cargados.</translation>
    </message>
    <message>
        <source>Sample data loaded</source>
        <translation>Datos de ejemplo cargados</translation>
    </message>
    <message>
        <source>No sample data to clear.</source>
        <translation>No hay datos de ejemplo que borrar.</translation>
    </message>
    <message>
        <source>Sample data cleared</source>
        <translation>Datos de ejemplo borrados</translation>
    </message>
    <message>
        <source>Sample Data</source>
        <translation>Datos de ejemplo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New Transaction</source>
        <translation>&amp;Nueva transacción</translation>
    </message>
    <message>
        <source>New &amp;Account</source>
        <translation>Nueva c&amp;uenta</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Kestrelwood &amp;Account...</source>
        <translation>Cuenta &amp;Kestrelwood...</translation>
    </message>
    <message>
        <source>Sign &amp;Out</source>
        <translation>C&amp;errar sesión</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Cuenta</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Editar...</translation>
    </message>
    <message>
        <source>&amp;Reconcile...</source>
        <translation>&amp;Conciliar...</translation>
    </message>
    <message>
        <source>Reconciliation &amp;History...</source>
        <translation>&amp;Historial de conciliaciones...</translation>
    </message>
    <message>
        <source>Rename &amp;Payees...</source>
        <translation>&amp;Renombrar beneficiarios...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Informes</translation>
    </message>
    <message>
        <source>Re&amp;curring Transactions</source>
        <translation>Transacciones &amp;recurrentes</translation>
    </message>
    <message>
        <source>C&amp;ategories</source>
        <translation>&amp;Categorías</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About Kestrelwood Pursewell</source>
        <translation>&amp;Acerca de Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Send &amp;Feedback...</source>
        <translation>Enviar co&amp;mentarios...</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>Atajos de &amp;teclado</translation>
    </message>
    <message>
        <source>Load &amp;Sample Data</source>
        <translation>Cargar &amp;datos de ejemplo</translation>
    </message>
    <message>
        <source>&amp;Clear Sample Data</source>
        <translation>&amp;Borrar datos de ejemplo</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>A digital pursewell register for tracking household finances.</source>
        <translation>Un registro digital Pursewell para llevar las finanzas del hogar.</translation>
    </message>
    <message>
        <source>Made and owned by Kestrelwood.</source>
        <translation>Creación y propiedad de Kestrelwood.</translation>
    </message>
    <message>
        <source>This application uses the Qt framework under the LGPL v3 license.</source>
        <translation>Esta aplicación usa el framework Qt bajo la licencia LGPL v3.</translation>
    </message>
    <message>
        <source>Its source code is available at %1</source>
        <translation>Código fuente: %1</translation>
    </message>
    <message>
        <source>About Kestrelwood Pursewell</source>
        <translation>Acerca de Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Register&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Save transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Insert new transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Delete current transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab / Shift+Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Next / previous field&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;&apos; (apostrophe)&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Copy value from field above&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Date Field&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;t&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Today&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;+ / -&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Next / previous day&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;m / h&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of month&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;y / r&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of year&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;w / k&lt;/b&gt;&lt;/td&gt;&lt;td&gt;First / last day of week&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;General&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;New transaction&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;New account&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Reconcile account&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%7&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Search transactions&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%8&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Import&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%9&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Reports&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Recurring transactions&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%11&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Categories&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Accounts&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%12 &amp;ndash; %13&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Switch to account 1&amp;ndash;9&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%14&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Switch to account 10&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</source>
        <translation>&lt;h3&gt;Registro&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Guardar la transacción&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Insertar una transacción nueva&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Eliminar la transacción actual&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab / Shift+Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Campo siguiente / anterior&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;&apos; (apóstrofo)&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Copiar el valor del campo de arriba&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Campo de fecha&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;t&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Hoy&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;+ / -&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Día siguiente / anterior&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;m / h&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Primer / último día del mes&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;y / r&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Primer / último día del año&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;w / k&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Primer / último día de la semana&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;General&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Nueva transacción&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Nueva cuenta&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Conciliar la cuenta&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%7&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Buscar transacciones&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%8&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Importar&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%9&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Informes&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Transacciones recurrentes&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%11&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Categorías&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;h3&gt;Cuentas&lt;/h3&gt;&lt;table cellspacing=&apos;6&apos;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%12 &amp;ndash; %13&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Cambiar a la cuenta 1&amp;ndash;9&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;%14&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Cambiar a la cuenta 10&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Signed in successfully</source>
        <translation>Sesión iniciada correctamente</translation>
    </message>
    <message>
        <source>Sign-in failed: %1</source>
        <translation>Error al iniciar sesión: %1</translation>
    </message>
    <message>
        <source>Sync complete</source>
        <translation>Sincronización terminada</translation>
    </message>
    <message>
        <source>Sync failed: %1</source>
        <translation>Error al sincronizar: %1</translation>
    </message>
    <message>
        <source>Manage your account</source>
        <translation>Administrar su cuenta</translation>
    </message>
    <message>
        <source>Sign in or sign up</source>
        <translation>Iniciar sesión o registrarse</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>Sesión no iniciada</translation>
    </message>
    <message>
        <source>Reconcile — %1</source>
        <translation>Conciliar — %1</translation>
    </message>
    <message>
        <source>Reconciliation History</source>
        <translation>Historial de conciliaciones</translation>
    </message>
    <message>
        <source>Recurring Transactions</source>
        <translation>Transacciones recurrentes</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>Search Transactions</source>
        <translation>Buscar transacciones</translation>
    </message>
    <message>
        <source>Import Transactions</source>
        <translation>Importar transacciones</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Payee Management</source>
        <translation>Gestión de beneficiarios</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Compartir...</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferencias...</translation>
    </message>
    <message>
        <source>&amp;Share...</source>
        <translation>Com&amp;partir...</translation>
    </message>
    <message>
        <source>What&apos;s &amp;New...</source>
        <translation>&amp;Novedades...</translation>
    </message>
    <message>
        <source>Check for &amp;Updates...</source>
        <translation>B&amp;uscar actualizaciones...</translation>
    </message>
    <message>
        <source>Kestrelwood Account</source>
        <translation>Cuenta Kestrelwood</translation>
    </message>
    <message>
        <source>Share Account</source>
        <translation>Compartir cuenta</translation>
    </message>
    <message>
        <source>Sharing: %1</source>
        <translation>Compartir: %1</translation>
    </message>
    <message>
        <source>Share this account with members of your Kestrelwood family group. They&apos;ll see the same register, balances, and reconciliation history on their devices.</source>
        <translation>Comparta esta cuenta con los miembros de su grupo familiar de Kestrelwood. Verán en sus dispositivos el mismo registro, los mismos saldos y el mismo historial de conciliaciones.</translation>
    </message>
    <message>
        <source>Shared with</source>
        <translation>Compartida con</translation>
    </message>
    <message>
        <source>Not shared with anyone yet.</source>
        <translation>Aún no se comparte con nadie.</translation>
    </message>
    <message>
        <source>You don&apos;t have a family group yet.</source>
        <translation>Aún no tiene un grupo familiar.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Remove access</source>
        <translation>Quitar acceso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Remove Share</source>
        <translation>Dejar de compartir</translation>
    </message>
    <message>
        <source>Remove %1&apos;s access to this account?</source>
        <translation>¿Quitar a %1 el acceso a esta cuenta?</translation>
    </message>
    <message>
        <source>Sign In Required</source>
        <translation>Inicio de sesión necesario</translation>
    </message>
    <message>
        <source>Sharing requires a Kestrelwood account.</source>
        <translation>Para compartir se necesita una cuenta Kestrelwood.</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
</context>
<context>
    <name>PayeeMemoEditor</name>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>PayeeScreen</name>
    <message>
        <source>Payee Management</source>
        <translation>Gestión de beneficiarios</translation>
    </message>
    <message>
        <source>Rename to:</source>
        <translation>Nuevo nombre:</translation>
    </message>
    <message>
        <source>Rename Selected</source>
        <translation>Renombrar selección</translation>
    </message>
    <message>
        <source>Merge Selected</source>
        <translation>Combinar selección</translation>
    </message>
    <message>
        <source>Rename Complete</source>
        <translation>Cambio de nombre terminado</translation>
    </message>
    <message numerus="yes">
        <source>Renamed %n transaction(s).</source>
        <translation>
            <numerusform>Se renombró el beneficiario de %n transacción.</numerusform>
            <numerusform>Se renombró el beneficiario de %n transacciones.</numerusform>
        </translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Select 2 or more payees to merge.</source>
        <translation>Seleccione 2 o más beneficiarios para combinarlos.</translation>
    </message>
    <message>
        <source>Merge Complete</source>
        <translation>Combinación terminada</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n transaction(s).</source>
        <translation>
            <numerusform>Se combinaron los beneficiarios en %n transacción.</numerusform>
            <numerusform>Se combinaron los beneficiarios en %n transacciones.</numerusform>
        </translation>
    </message>
    <message>
        <source>Merge Payees</source>
        <translation>Combinar beneficiarios</translation>
    </message>
    <message>
        <source>Merge %1 payees into &quot;%2&quot;?</source>
        <translation>¿Combinar %1 beneficiarios en &quot;%2&quot;?</translation>
    </message>
    <message>
        <source>Payees</source>
        <translation>Beneficiarios</translation>
    </message>
</context>
<context>
    <name>QifMappingForm</name>
    <message>
        <source>QIF source accounts:</source>
        <translation>Cuentas de origen QIF:</translation>
    </message>
    <message>
        <source>Choose where each Quicken account should be imported. Accounts mapped across the selected files will have their transfers linked automatically.</source>
        <translation>Elija a qué cuenta se importará cada cuenta de Quicken. Las transferencias entre las cuentas asignadas de los archivos seleccionados se vincularán automáticamente.</translation>
    </message>
    <message>
        <source>— Create new account &quot;%1&quot; —</source>
        <translation>— Crear la cuenta &quot;%1&quot; —</translation>
    </message>
    <message>
        <source>— Skip these transactions —</source>
        <translation>— Omitir estas transacciones —</translation>
    </message>
</context>
<context>
    <name>ReconciliationHistoryScreen</name>
    <message>
        <source>Reconciliation History</source>
        <translation>Historial de conciliaciones</translation>
    </message>
    <message>
        <source>No reconciliations yet. Reconcile your account from the register to see the history here.</source>
        <translation>Aún no hay conciliaciones. Concilie la cuenta desde el registro para ver aquí el historial.</translation>
    </message>
    <message>
        <source>Past reconciliations for this account.</source>
        <translation>Conciliaciones anteriores de esta cuenta.</translation>
    </message>
    <message>
        <source>Statement Date</source>
        <translation>Fecha del extracto</translation>
    </message>
    <message>
        <source>Statement Balance</source>
        <translation>Saldo del extracto</translation>
    </message>
    <message>
        <source>Reconciled Balance</source>
        <translation>Saldo conciliado</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Finalizada</translation>
    </message>
    <message>
        <source>Reconciliation History — %1</source>
        <translation>Historial de conciliaciones — %1</translation>
    </message>
</context>
<context>
    <name>ReconciliationModel</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Beneficiario</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Clr</source>
        <translation>Est.</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Marcada</translation>
    </message>
    <message>
        <source>Not ticked</source>
        <translation>Sin marcar</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Compensada</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>No compensada</translation>
    </message>
</context>
<context>
    <name>ReconciliationScreen</name>
    <message>
        <source>Reconcile Account</source>
        <translation>Conciliar cuenta</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>Finish Reconciliation</source>
        <translation>Finalizar conciliación</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Statement Date:</source>
        <translation>Fecha del extracto:</translation>
    </message>
    <message>
        <source>Statement Balance:</source>
        <translation>Saldo del extracto:</translation>
    </message>
    <message>
        <source>Add Transaction</source>
        <translation>Agregar transacción</translation>
    </message>
    <message>
        <source>Add a transaction (%1)</source>
        <translation>Agregar una transacción (%1)</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit selected transaction (F2)</source>
        <translation>Editar la transacción seleccionada (F2)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete selected transaction (Del)</source>
        <translation>Eliminar la transacción seleccionada (Supr)</translation>
    </message>
    <message>
        <source>Reconciliation Complete</source>
        <translation>Conciliación finalizada</translation>
    </message>
    <message>
        <source>Account reconciled successfully.</source>
        <translation>La cuenta se concilió correctamente.</translation>
    </message>
    <message>
        <source>Delete Transaction</source>
        <translation>Eliminar transacción</translation>
    </message>
    <message>
        <source>Delete the transaction for %1?</source>
        <translation>¿Eliminar la transacción de %1?</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Transacciones</translation>
    </message>
</context>
<context>
    <name>ReconciliationSummary</name>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Previous Balance</source>
        <translation>Saldo anterior</translation>
    </message>
    <message>
        <source>Cleared Deposits</source>
        <translation>Depósitos compensados</translation>
    </message>
    <message>
        <source>Cleared Withdrawals</source>
        <translation>Retiros compensados</translation>
    </message>
    <message>
        <source>Cleared Balance</source>
        <translation>Saldo compensado</translation>
    </message>
    <message>
        <source>Statement Balance</source>
        <translation>Saldo del extracto</translation>
    </message>
</context>
<context>
    <name>RecurringFormDialog</name>
    <message>
        <source>New Recurring Transaction</source>
        <translation>Nueva transacción recurrente</translation>
    </message>
    <message>
        <source>Edit Recurring Transaction</source>
        <translation>Editar transacción recurrente</translation>
    </message>
    <message>
        <source>Memorize Transaction</source>
        <translation>Memorizar transacción</translation>
    </message>
    <message>
        <source>Start typing to search payees...</source>
        <translation>Escriba para buscar beneficiarios...</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Opcional</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Diaria</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>Bi-weekly</source>
        <translation>Cada 2 semanas</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensual</translation>
    </message>
    <message>
        <source>Quarterly</source>
        <translation>Trimestral</translation>
    </message>
    <message>
        <source>Semi-annual</source>
        <translation>Semestral</translation>
    </message>
    <message>
        <source>Annual</source>
        <translation>Anual</translation>
    </message>
    <message>
        <source>Has end date</source>
        <translation>Con fecha de fin</translation>
    </message>
    <message>
        <source>Auto-post when due</source>
        <translation>Registrar automáticamente</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Depósito</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Cuenta:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Beneficiario:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Importe:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frecuencia:</translation>
    </message>
    <message>
        <source>Start Date:</source>
        <translation>Fecha de inicio:</translation>
    </message>
    <message>
        <source>End Date:</source>
        <translation>Fecha de fin:</translation>
    </message>
</context>
<context>
    <name>RecurringModel</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Beneficiario</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Next Due</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>RecurringScreen</name>
    <message>
        <source>Recurring Transactions</source>
        <translation>Transacciones recurrentes</translation>
    </message>
    <message>
        <source>Confirm All Due</source>
        <translation>Confirmar pendientes</translation>
    </message>
    <message>
        <source>New Recurring</source>
        <translation>Nueva recurrente</translation>
    </message>
    <message>
        <source>(%1 due)</source>
        <translation>(pendientes: %1)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete recurring &quot;%1&quot;?</source>
        <translation>¿Eliminar la transacción recurrente &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Confirm</source>
        <translation>&amp;Confirmar</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
</context>
<context>
    <name>RegisterColumnLayout</name>
    <message>
        <source>Show columns</source>
        <translation>Mostrar columnas</translation>
    </message>
    <message>
        <source>Reset register layout</source>
        <translation>Restablecer el diseño del registro</translation>
    </message>
</context>
<context>
    <name>RegisterHeader</name>
    <message>
        <source>Reconcile</source>
        <translation>Conciliar</translation>
    </message>
</context>
<context>
    <name>RegisterModel</name>
    <message>
        <source>—Split—</source>
        <translation>—Desglose—</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Chk #</source>
        <translation>Cheque</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Beneficiario</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Depósito</translation>
    </message>
    <message>
        <source>Clr</source>
        <translation>Est.</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Payee / Memo</source>
        <translation>Beneficiario / Nota</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Conciliada</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Compensada</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>No compensada</translation>
    </message>
    <message>
        <source>New transaction, %1</source>
        <translation>Nueva transacción, %1</translation>
    </message>
    <message>
        <source>New transaction, %1: %2</source>
        <translation>Nueva transacción, %1: %2</translation>
    </message>
    <message>
        <source>Check number</source>
        <translation>Número de cheque</translation>
    </message>
</context>
<context>
    <name>RegisterScreen</name>
    <message>
        <source>Payee is required</source>
        <translation>Falta el beneficiario</translation>
    </message>
    <message>
        <source>Enter a payment or deposit amount</source>
        <translation>Indique el importe del pago o del depósito</translation>
    </message>
    <message>
        <source>Transfer account not found</source>
        <translation>No se encontró la cuenta de la transferencia</translation>
    </message>
    <message>
        <source>Transfers require both accounts to use the same currency</source>
        <translation>Para una transferencia, ambas cuentas deben usar la misma moneda</translation>
    </message>
    <message>
        <source>Transfer to %1</source>
        <translation>Transferencia a %1</translation>
    </message>
    <message>
        <source>Transfer from %1</source>
        <translation>Transferencia desde %1</translation>
    </message>
    <message>
        <source>%1: save  |  Enter: next  |  %2: delete  |  %3: memorize  |  &apos;: copy above</source>
        <translation>%1: guardar  |  Enter: siguiente  |  %2: eliminar  |  %3: memorizar  |  &apos;: copiar de arriba</translation>
    </message>
    <message>
        <source>Fields cleared</source>
        <translation>Campos vaciados</translation>
    </message>
    <message>
        <source>Cannot memorize: source transaction has an invalid date</source>
        <translation>No se puede memorizar: la fecha de la transacción de origen no es válida</translation>
    </message>
    <message>
        <source>Transaction memorized as recurring</source>
        <translation>Transacción memorizada como recurrente</translation>
    </message>
    <message>
        <source>&amp;Insert New</source>
        <translation>&amp;Insertar nueva</translation>
    </message>
    <message>
        <source>&amp;New Transaction...</source>
        <translation>&amp;Nueva transacción...</translation>
    </message>
    <message>
        <source>Show &amp;Details...</source>
        <translation>Mostrar &amp;detalles...</translation>
    </message>
    <message>
        <source>Edit &amp;Splits...</source>
        <translation>Editar de&amp;sglose...</translation>
    </message>
    <message>
        <source>&amp;Edit in Dialog...</source>
        <translation>&amp;Editar en ventana...</translation>
    </message>
    <message>
        <source>Mark &amp;Uncleared</source>
        <translation>Marcar como no com&amp;pensada</translation>
    </message>
    <message>
        <source>Mark &amp;Cleared</source>
        <translation>Marcar como &amp;compensada</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Delete Transaction</source>
        <translation>Eliminar transacción</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; for %2?</source>
        <translation>¿Eliminar &quot;%1&quot; por %2?</translation>
    </message>
    <message>
        <source>Delete transfer &quot;%1&quot; for %2?

Both sides of the transfer will be deleted.</source>
        <translation>¿Eliminar la transferencia &quot;%1&quot; por %2?

Se eliminarán los dos lados de la transferencia.</translation>
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
        <translation>Informes</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Cuenta:</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Este mes</translation>
    </message>
    <message>
        <source>Last Month</source>
        <translation>Mes pasado</translation>
    </message>
    <message>
        <source>This Quarter</source>
        <translation>Este trimestre</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Trimestre pasado</translation>
    </message>
    <message>
        <source>This Year</source>
        <translation>Este año</translation>
    </message>
    <message>
        <source>Last Year</source>
        <translation>Año pasado</translation>
    </message>
    <message>
        <source>Last 30 Days</source>
        <translation>Últimos 30 días</translation>
    </message>
    <message>
        <source>Last 90 Days</source>
        <translation>Últimos 90 días</translation>
    </message>
    <message>
        <source>Last 12 Months</source>
        <translation>Últimos 12 meses</translation>
    </message>
    <message>
        <source>All Time</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Period:</source>
        <translation>Período:</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exportar CSV</translation>
    </message>
    <message>
        <source>Category Spending</source>
        <translation>Gastos por categoría</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Payee Summary</source>
        <translation>Por beneficiario</translation>
    </message>
    <message>
        <source>Payee</source>
        <translation>Beneficiario</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Transacciones</translation>
    </message>
    <message>
        <source>Tax Report</source>
        <translation>Informe fiscal</translation>
    </message>
    <message>
        <source>Tax Code</source>
        <translation>Código fiscal</translation>
    </message>
    <message>
        <source>Income vs Expenses</source>
        <translation>Ingresos y gastos</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Ingresos</translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation>Gastos</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Neto</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Flujo de caja</translation>
    </message>
    <message>
        <source>Inflows</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Outflows</source>
        <translation>Salidas</translation>
    </message>
    <message>
        <source>Year-over-Year</source>
        <translation>Interanual</translation>
    </message>
    <message>
        <source>Period 1</source>
        <translation>Período 1</translation>
    </message>
    <message>
        <source>Period 2</source>
        <translation>Período 2</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Account Summary</source>
        <translation>Resumen de cuentas</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Compensado</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>No compensado</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Transacciones</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>All Accounts</source>
        <translation>Todas las cuentas</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>Archivos CSV (*.csv)</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
</context>
<context>
    <name>SampleDataService</name>
    <message>
        <source>Main Checking</source>
        <translation>Corriente principal</translation>
    </message>
    <message>
        <source>Riverbend Credit Union</source>
        <translation>Cooperativa Riverbend</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Ahorros</translation>
    </message>
    <message>
        <source>Visa Rewards</source>
        <translation>Visa Recompensas</translation>
    </message>
    <message>
        <source>Summit Bank</source>
        <translation>Banco Summit</translation>
    </message>
    <message>
        <source>Brightpath Inc</source>
        <translation>Brightpath Inc</translation>
    </message>
    <message>
        <source>Biweekly paycheck</source>
        <translation>Sueldo quincenal</translation>
    </message>
    <message>
        <source>Pinecrest Apartments</source>
        <translation>Apartamentos Pinecrest</translation>
    </message>
    <message>
        <source>February rent</source>
        <translation>Alquiler de febrero</translation>
    </message>
    <message>
        <source>March rent</source>
        <translation>Alquiler de marzo</translation>
    </message>
    <message>
        <source>Greenleaf Market</source>
        <translation>Mercado Greenleaf</translation>
    </message>
    <message>
        <source>Weekly groceries</source>
        <translation>Compra de la semana</translation>
    </message>
    <message>
        <source>Hilltop Gas</source>
        <translation>Gasolinera Hilltop</translation>
    </message>
    <message>
        <source>Fill up</source>
        <translation>Tanque lleno</translation>
    </message>
    <message>
        <source>Lakeside Utilities</source>
        <translation>Servicios Lakeside</translation>
    </message>
    <message>
        <source>Electric bill</source>
        <translation>Factura de electricidad</translation>
    </message>
    <message>
        <source>Water bill</source>
        <translation>Factura del agua</translation>
    </message>
    <message>
        <source>Streamline TV</source>
        <translation>Streamline TV</translation>
    </message>
    <message>
        <source>Monthly streaming</source>
        <translation>Cuota mensual de streaming</translation>
    </message>
    <message>
        <source>Maplewood Diner</source>
        <translation>Restaurante Maplewood</translation>
    </message>
    <message>
        <source>Dinner out</source>
        <translation>Cena fuera</translation>
    </message>
    <message>
        <source>Lunch</source>
        <translation>Almuerzo</translation>
    </message>
    <message>
        <source>Clearview Insurance</source>
        <translation>Seguros Clearview</translation>
    </message>
    <message>
        <source>Auto insurance</source>
        <translation>Seguro del automóvil</translation>
    </message>
    <message>
        <source>Hope Community Church</source>
        <translation>Iglesia Comunitaria Esperanza</translation>
    </message>
    <message>
        <source>Monthly donation</source>
        <translation>Donación mensual</translation>
    </message>
    <message>
        <source>NetConnect ISP</source>
        <translation>NetConnect Internet</translation>
    </message>
    <message>
        <source>Internet service</source>
        <translation>Servicio de internet</translation>
    </message>
    <message>
        <source>Ridgeline Pharmacy</source>
        <translation>Farmacia Ridgeline</translation>
    </message>
    <message>
        <source>Prescriptions</source>
        <translation>Medicamentos con receta</translation>
    </message>
    <message>
        <source>Coffee &amp; pastry</source>
        <translation>Café y pastel</translation>
    </message>
    <message>
        <source>Transfer to Savings</source>
        <translation>Transferencia a Ahorros</translation>
    </message>
    <message>
        <source>Monthly savings</source>
        <translation>Ahorro mensual</translation>
    </message>
    <message>
        <source>Transfer from Checking</source>
        <translation>Transferencia desde Corriente principal</translation>
    </message>
    <message>
        <source>Interest payment</source>
        <translation>Abono de intereses</translation>
    </message>
    <message>
        <source>Dash Delivery</source>
        <translation>Dash Delivery</translation>
    </message>
    <message>
        <source>Food delivery</source>
        <translation>Comida a domicilio</translation>
    </message>
    <message>
        <source>Gadget World</source>
        <translation>Gadget World</translation>
    </message>
    <message>
        <source>Phone case</source>
        <translation>Funda para el teléfono</translation>
    </message>
    <message>
        <source>CloudWatch Plus</source>
        <translation>CloudWatch Plus</translation>
    </message>
    <message>
        <source>Cloud storage plan</source>
        <translation>Almacenamiento en la nube</translation>
    </message>
    <message>
        <source>Payment - Thank You</source>
        <translation>Pago recibido - Gracias</translation>
    </message>
    <message>
        <source>Credit card payment</source>
        <translation>Pago de la tarjeta de crédito</translation>
    </message>
    <message>
        <source>Stellar Coffee</source>
        <translation>Café Stellar</translation>
    </message>
    <message>
        <source>Coffee beans</source>
        <translation>Café en grano</translation>
    </message>
    <message>
        <source>BookNest Online</source>
        <translation>BookNest Online</translation>
    </message>
    <message>
        <source>Programming books</source>
        <translation>Libros de programación</translation>
    </message>
    <message>
        <source>TechVault</source>
        <translation>TechVault</translation>
    </message>
    <message>
        <source>USB hub</source>
        <translation>Concentrador USB</translation>
    </message>
    <message>
        <source>Monthly rent</source>
        <translation>Alquiler mensual</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Search payee, memo, check number...</source>
        <translation>Buscar beneficiario, nota, número de cheque...</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Fechas:</translation>
    </message>
    <message>
        <source>Cleared only</source>
        <translation>Solo compensadas</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Cuenta:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>All Accounts</source>
        <translation>Todas las cuentas</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Todas las categorías</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>SettingsAboutPage</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Kestrelwood Pursewell</source>
        <translation>Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>A digital pursewell register for tracking household finances.</source>
        <translation>Un registro digital Pursewell para llevar las finanzas del hogar.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Source code</source>
        <translation>Código fuente</translation>
    </message>
    <message>
        <source>This application uses the Qt framework under the LGPL v3 license.</source>
        <translation>Esta aplicación usa el framework Qt bajo la licencia LGPL v3.</translation>
    </message>
    <message>
        <source>Its icons are from the Material Icons font, under the Apache License 2.0.</source>
        <translation>Sus iconos son de la fuente Material Icons, con la licencia Apache 2.0.</translation>
    </message>
</context>
<context>
    <name>SettingsBackupSection</name>
    <message>
        <source>ZIP Files (*.zip)</source>
        <translation>Archivos ZIP (*.zip)</translation>
    </message>
    <message>
        <source>Export Backup</source>
        <translation>Exportar copia</translation>
    </message>
    <message>
        <source>Import Backup</source>
        <translation>Importar copia</translation>
    </message>
    <message>
        <source>Backup &amp; Restore</source>
        <translation>Copia de seguridad y restauración</translation>
    </message>
    <message>
        <source>Save or restore your data to a portable backup file.</source>
        <translation>Guarde sus datos en un archivo de copia de seguridad portátil o restáurelos desde él.</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Exportando...</translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Copia de seguridad terminada</translation>
    </message>
    <message>
        <source>Backup saved to:
%1</source>
        <translation>Copia de seguridad guardada en:
%1</translation>
    </message>
    <message>
        <source>Backup Failed</source>
        <translation>Error en la copia de seguridad</translation>
    </message>
    <message>
        <source>Could not write to:
%1</source>
        <translation>No se pudo escribir en:
%1</translation>
    </message>
    <message>
        <source>Import Failed</source>
        <translation>Error al importar</translation>
    </message>
    <message>
        <source>Could not read file.</source>
        <translation>No se pudo leer el archivo.</translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Importando...</translation>
    </message>
    <message>
        <source>Replace all with backup data</source>
        <translation>Reemplazar todo por los datos de la copia</translation>
    </message>
    <message>
        <source>Keep newer (compare timestamps)</source>
        <translation>Conservar lo más reciente (comparar fechas)</translation>
    </message>
    <message>
        <source>Skip existing items</source>
        <translation>Omitir los elementos existentes</translation>
    </message>
    <message>
        <source>Import Mode</source>
        <translation>Modo de importación</translation>
    </message>
    <message>
        <source>How should existing data be handled?</source>
        <translation>¿Qué se hace con los datos existentes?</translation>
    </message>
    <message>
        <source>Imported %1 items, skipped %2.</source>
        <translation>Elementos importados: %1; omitidos: %2.</translation>
    </message>
    <message numerus="yes">
        <source>

%n error(s) occurred.</source>
        <translation>
            <numerusform>

Se produjo %n error.</numerusform>
            <numerusform>

Se produjeron %n errores.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import Complete</source>
        <translation>Importación terminada</translation>
    </message>
</context>
<context>
    <name>SettingsDeletedAccounts</name>
    <message>
        <source>Restore Selected</source>
        <translation>Restaurar selección</translation>
    </message>
    <message>
        <source>Deleted Accounts</source>
        <translation>Cuentas eliminadas</translation>
    </message>
    <message>
        <source>Accounts you&apos;ve deleted can be restored here.</source>
        <translation>Aquí puede restaurar las cuentas que haya eliminado.</translation>
    </message>
</context>
<context>
    <name>SettingsGeneralPage</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Control how Kestrelwood Pursewell looks.</source>
        <translation>Ajuste el aspecto de Kestrelwood Pursewell.</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Según el sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Tamaño de letra</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeño</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mediano</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Extra Large</source>
        <translation>Muy grande</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Week starts on</source>
        <translation>Inicio de semana</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Regional</source>
        <translation>Regional</translation>
    </message>
    <message>
        <source>Date and calendar preferences.</source>
        <translation>Preferencias de fecha y calendario.</translation>
    </message>
</context>
<context>
    <name>SettingsNavigation</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Data &amp; Sync</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>SettingsRegisterPage</name>
    <message>
        <source>Register</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>How transactions appear in the register.</source>
        <translation>Cómo se muestran las transacciones en el registro.</translation>
    </message>
    <message>
        <source>Two-line rows</source>
        <translation>Filas de dos líneas</translation>
    </message>
    <message>
        <source>Show memo on a second line below the payee.</source>
        <translation>Mostrar la nota en una segunda línea, debajo del beneficiario.</translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Control the order of transactions in the register.</source>
        <translation>Elija el orden de las transacciones en el registro.</translation>
    </message>
    <message>
        <source>Show newest transactions first</source>
        <translation>Mostrar primero las más recientes</translation>
    </message>
    <message>
        <source>When enabled, the most recent transactions appear at the top.</source>
        <translation>Si se activa, las transacciones más recientes aparecen arriba.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Data &amp; Sync</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma cambiado</translation>
    </message>
    <message>
        <source>The new language will take effect the next time you start Kestrelwood Pursewell.</source>
        <translation>El nuevo idioma se aplicará la próxima vez que inicie Kestrelwood Pursewell.</translation>
    </message>
    <message>
        <source>Restore Failed</source>
        <translation>Error al restaurar</translation>
    </message>
    <message>
        <source>The account could not be restored.</source>
        <translation>No se pudo restaurar la cuenta.</translation>
    </message>
</context>
<context>
    <name>SettingsSyncSection</name>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Keep your pursewell in sync across all your devices.</source>
        <translation>Mantenga su Pursewell sincronizado en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>Sync Now</source>
        <translation>Sincronizar</translation>
    </message>
    <message>
        <source>Force Full Sync</source>
        <translation>Resincronizar todo</translation>
    </message>
    <message>
        <source>Not signed in.
Sign in via File › Kestrelwood Account to enable sync.</source>
        <translation>Sesión no iniciada.
Inicie sesión desde Archivo › Cuenta Kestrelwood para activar la sincronización.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Signed in as:&lt;/b&gt; %1&lt;br&gt;&lt;b&gt;Status:&lt;/b&gt; &lt;span style=&quot;color:%2&quot;&gt;%3&lt;/span&gt;</source>
        <translation>&lt;b&gt;Sesión iniciada como:&lt;/b&gt; %1&lt;br&gt;&lt;b&gt;Estado:&lt;/b&gt; &lt;span style=&quot;color:%2&quot;&gt;%3&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Never synced</source>
        <translation>Nunca sincronizado</translation>
    </message>
    <message>
        <source>Last synced: %1</source>
        <translation>Última sincronización: %1</translation>
    </message>
    <message>
        <source>
Error: %1</source>
        <translation>
Error: %1</translation>
    </message>
    <message>
        <source>This will re-upload every local row to the server and re-download all server data. Use this if data appears out of sync between devices.

Continue?</source>
        <translation>Se volverán a subir al servidor todas las filas locales y se descargarán de nuevo todos los datos del servidor. Use esta opción si los datos no coinciden entre dispositivos.

¿Continuar?</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
</context>
<context>
    <name>SplitEditorDialog</name>
    <message>
        <source>Split Transaction</source>
        <translation>Desglosar transacción</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>+ Add Line</source>
        <translation>+ Agregar línea</translation>
    </message>
    <message>
        <source>- Remove</source>
        <translation>- Quitar</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>Remaining: %1</source>
        <translation>Restante: %1</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s)</source>
        <translation>
            <numerusform>%n cuenta</numerusform>
            <numerusform>%n cuentas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>  •  %n recurring due</source>
        <translation>
            <numerusform>  •  %n recurrente pendiente</numerusform>
            <numerusform>  •  %n recurrentes pendientes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransactionDetailsDialog</name>
    <message>
        <source>Transaction Details</source>
        <translation>Detalles de la transacción</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Beneficiario:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Importe:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation>Cheque n.º:</translation>
    </message>
    <message>
        <source>Transfer to:</source>
        <translation>Transferencia a:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>—Split—</source>
        <translation>—Desglose—</translation>
    </message>
    <message>
        <source>Split lines</source>
        <translation>Líneas del desglose</translation>
    </message>
    <message>
        <source>(no split lines on record)</source>
        <translation>(sin líneas de desglose)</translation>
    </message>
    <message>
        <source>(uncategorized)</source>
        <translation>(sin categoría)</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Entered: %1</source>
        <translation>Registrada: %1</translation>
    </message>
    <message>
        <source>Last modified: %1</source>
        <translation>Última modificación: %1</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Eliminar...</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Compensada</translation>
    </message>
    <message>
        <source>Uncleared</source>
        <translation>No compensada</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Conciliada</translation>
    </message>
    <message>
        <source>Mark Uncleared</source>
        <translation>Marcar no compensada</translation>
    </message>
    <message>
        <source>Mark Cleared</source>
        <translation>Marcar compensada</translation>
    </message>
</context>
<context>
    <name>TransactionFormDialog</name>
    <message>
        <source>New Transaction</source>
        <translation>Nueva transacción</translation>
    </message>
    <message>
        <source>Edit Transaction</source>
        <translation>Editar transacción</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Payee:</source>
        <translation>Beneficiario:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Importe:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>Memo:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation>Cheque n.º:</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Compensada</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Depósito</translation>
    </message>
    <message>
        <source>Start typing to search payees...</source>
        <translation>Escriba para buscar beneficiarios...</translation>
    </message>
    <message>
        <source>$ </source>
        <translation>$ </translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Split this transaction across multiple categories with their own amounts and memos.</source>
        <translation>Desglosar esta transacción en varias categorías, cada una con su importe y su nota.</translation>
    </message>
    <message>
        <source>Clear split</source>
        <translation>Quitar desglose</translation>
    </message>
    <message>
        <source>Drop the split and return to a single-category transaction.</source>
        <translation>Descartar el desglose y volver a una transacción de una sola categoría.</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Opcional</translation>
    </message>
    <message>
        <source>—Split—</source>
        <translation>—Desglose—</translation>
    </message>
    <message>
        <source>Edit splits...</source>
        <translation>Editar desglose...</translation>
    </message>
    <message>
        <source>Split...</source>
        <translation>Desglosar...</translation>
    </message>
</context>
<context>
    <name>WelcomeScreen</name>
    <message>
        <source>Your session has ended. Sign back in to keep syncing.</source>
        <translation>Su sesión ha terminado. Vuelva a iniciar sesión para seguir sincronizando.</translation>
    </message>
    <message>
        <source>Works fully offline. Your data stays on this device.</source>
        <translation>Funciona totalmente sin conexión. Sus datos permanecen en este dispositivo.</translation>
    </message>
    <message>
        <source>How it works</source>
        <translation>Cómo funciona</translation>
    </message>
    <message>
        <source>Add an account (checking, savings, credit card, or any account you&apos;d like to track).</source>
        <translation>Agregue una cuenta (corriente, de ahorros, tarjeta de crédito o cualquier otra que quiera controlar).</translation>
    </message>
    <message>
        <source>Record transactions as you spend.</source>
        <translation>Registre sus transacciones a medida que gasta.</translation>
    </message>
    <message>
        <source>Reconcile when your statement arrives.</source>
        <translation>Concilie la cuenta cuando reciba el extracto.</translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation>Hola de nuevo</translation>
    </message>
    <message>
        <source>Welcome to
Kestrelwood Pursewell</source>
        <translation>Bienvenido a
Kestrelwood Pursewell</translation>
    </message>
    <message>
        <source>Sign in to keep your data synced across devices.</source>
        <translation>Inicie sesión para mantener sus datos sincronizados en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>A digital pursewell register.</source>
        <translation>Un registro digital Pursewell.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Already have an account? Sign In</source>
        <translation>¿Ya tiene una cuenta? Inicie sesión</translation>
    </message>
    <message>
        <source>Create a different account</source>
        <translation>Crear otra cuenta</translation>
    </message>
    <message>
        <source>Create Your First Account</source>
        <translation>Crear su primera cuenta</translation>
    </message>
</context>
</TS>

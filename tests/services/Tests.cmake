find_package(PkgConfig REQUIRED)
pkg_check_modules(libzip REQUIRED IMPORTED_TARGET libzip)

pursewell_test(BackupServiceTest LABEL unit
  USES pursewell_services pursewell_test_database PkgConfig::libzip)
pursewell_test(CategoryServiceTest LABEL unit USES pursewell_services pursewell_test_database)
pursewell_test(CsvImportTest LABEL unit USES pursewell_services pursewell_test_database)
pursewell_test(CsvReaderTest LABEL unit USES pursewell_services)
pursewell_test(ImportServiceTest LABEL unit USES pursewell_services pursewell_test_database)
pursewell_test(QifReaderTest LABEL unit USES pursewell_services)
pursewell_test(RecurringServiceTest LABEL unit USES pursewell_services pursewell_test_database)
pursewell_test(ReportServiceTest LABEL unit
  USES pursewell_services pursewell_test_database rapidcheck)
# With the catalogues, which the shell holds.
pursewell_test(SampleDataServiceTest LABEL unit USES pursewell_shell pursewell_test_database)
pursewell_test(TransferPairingTest LABEL unit USES pursewell_services rapidcheck)

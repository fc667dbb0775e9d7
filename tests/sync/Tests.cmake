find_package(SQLite3 REQUIRED)

pursewell_test(AccountSharingTest LABEL widget USES pursewell_sync)
pursewell_test(BadAnswersTest LABEL unit USES pursewell_sync pursewell_test_database
  SOURCES SyncRig.cpp)
pursewell_test(SyncPayloadsTest LABEL unit USES pursewell_sync pursewell_test_database)
pursewell_test(PullApplierTest LABEL unit USES pursewell_sync pursewell_test_database)
pursewell_test(SyncEngineTest LABEL unit
  USES pursewell_sync pursewell_test_database SQLite::SQLite3
  SOURCES SyncRig.cpp)
pursewell_test(TwoDevicesTest LABEL unit USES pursewell_sync pursewell_test_database localservice
  SOURCES SyncRig.cpp)

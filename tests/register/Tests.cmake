add_library(pursewell_register_fixture STATIC
  register/RegisterFixture.cpp register/RegisterFixture.h)
target_link_libraries(pursewell_register_fixture PUBLIC pursewell_register pursewell_state_fixture)
target_precompile_headers(pursewell_register_fixture REUSE_FROM pursewell_test_support)

pursewell_test(AccountFormDialogTest LABEL widget USES pursewell_register
               SOURCES ../support/SampleRecords.cpp)
pursewell_test(DateFieldsTest LABEL widget USES pursewell_register)
pursewell_test(RecurringFormDialogTest LABEL widget
  USES pursewell_register_fixture pursewell_test_database)
pursewell_test(RegisterColumnLayoutTest LABEL widget USES pursewell_register_fixture)
pursewell_test(RegisterDialogsTest LABEL widget USES pursewell_register_fixture)
pursewell_test(RegisterEntryTest LABEL widget USES pursewell_register_fixture)
pursewell_test(RegisterKeysTest LABEL widget USES pursewell_register_fixture)
pursewell_test(RegisterModelTest LABEL widget USES pursewell_register)
pursewell_test(RegisterSpeechTest LABEL widget USES pursewell_register_fixture)
pursewell_test(RegisterTwoLineTest LABEL widget USES pursewell_register_fixture)
pursewell_test(TransactionDetailsDialogTest LABEL widget USES pursewell_register_fixture)
pursewell_test(TransactionFormDialogTest LABEL widget USES pursewell_register_fixture
  SOURCES ../support/SampleRecords.cpp)

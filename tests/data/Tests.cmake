find_package(rapidcheck REQUIRED)

add_library(pursewell_test_database STATIC
  support/SampleRecords.cpp support/SampleRecords.h
  support/TestDatabase.cpp support/TestDatabase.h)
target_link_libraries(pursewell_test_database PUBLIC pursewell_data pursewell_test_support)
target_precompile_headers(pursewell_test_database REUSE_FROM pursewell_test_support)

pursewell_test(BrokenRowsTest LABEL unit USES pursewell_test_database)
pursewell_test(DatabaseTest LABEL unit USES pursewell_data SOURCES DatabaseFile.cpp)
pursewell_test(FullTextSearchMissingTest LABEL unit USES pursewell_data)
pursewell_test(ListsTest LABEL unit USES pursewell_test_database)
pursewell_test(MigrationFailureTest LABEL unit USES pursewell_data SOURCES DatabaseFile.cpp)
pursewell_test(PreferencesRepositoryTest LABEL unit USES pursewell_test_database)
pursewell_test(RepositoriesTest LABEL unit USES pursewell_test_database)
pursewell_test(RefusedWritesTest LABEL unit USES pursewell_test_database)
pursewell_test(RegisterRowsTest LABEL unit USES pursewell_test_database rapidcheck)
pursewell_test(SearchTest LABEL unit USES pursewell_test_database)
pursewell_test(StatementSplitterTest LABEL unit USES pursewell_data)

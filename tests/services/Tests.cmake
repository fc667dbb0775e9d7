pursewell_test(CategoryServiceTest LABEL unit USES pursewell_services pursewell_test_database)
pursewell_test(RecurringServiceTest LABEL unit USES pursewell_services pursewell_test_database)
# With the catalogues, which the shell holds.
pursewell_test(SampleDataServiceTest LABEL unit USES pursewell_shell pursewell_test_database)

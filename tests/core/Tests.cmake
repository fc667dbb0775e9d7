find_package(rapidcheck REQUIRED)

pursewell_test(DatesTest LABEL unit USES pursewell_core)
pursewell_test(IdsTest LABEL unit USES pursewell_core)
pursewell_test(LanguageTest LABEL unit USES pursewell_core)
pursewell_test(MoneyTest LABEL unit USES pursewell_core rapidcheck)

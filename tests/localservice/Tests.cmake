pursewell_test(LocalServiceTest LABEL unit USES localservice)

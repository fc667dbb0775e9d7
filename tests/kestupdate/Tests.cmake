pursewell_test(UpdateClientTest LABEL unit USES kestupdate)
pursewell_test(UpdateWindowsTest LABEL widget USES kestupdate)

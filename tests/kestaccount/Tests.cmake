pursewell_test(AccountClientTest LABEL unit USES kestaccount)
pursewell_test(AccountScreenTest LABEL widget USES kestaccount)
pursewell_test(ApiClientTest LABEL unit USES kestaccount)
pursewell_test(AuthClientTest LABEL unit USES kestaccount)
pursewell_test(TokenManagerTest LABEL unit USES kestaccount)

# The credential store of another system, built here against a stand-in for its four calls.
pursewell_test(TokenStoresTest LABEL unit USES kestaccount
  SOURCES ../../src/kestaccount/CredentialManagerTokenStore.cpp)
target_include_directories(TokenStoresTest PRIVATE
  kestaccount/platform ${CMAKE_CURRENT_SOURCE_DIR}/../src) # its header is not of this platform

pursewell_test(KeyringTokenStoreTest LABEL unit USES kestaccount
  LAUNCHER ${CMAKE_CURRENT_SOURCE_DIR}/kestaccount/run-with-keyring.sh)

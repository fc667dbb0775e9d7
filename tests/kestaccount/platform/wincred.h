#pragma once

#include <windows.h>

inline constexpr DWORD CRED_TYPE_GENERIC = 1;
inline constexpr DWORD CRED_PERSIST_SESSION = 1;
inline constexpr DWORD CRED_PERSIST_LOCAL_MACHINE = 2;

struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};

struct CREDENTIALW
{
    DWORD Flags;
    DWORD Type;
    LPWSTR TargetName;
    LPWSTR Comment;
    FILETIME LastWritten;
    DWORD CredentialBlobSize;
    LPBYTE CredentialBlob;
    DWORD Persist;
    DWORD AttributeCount;
    void *Attributes;
    LPWSTR TargetAlias;
    LPWSTR UserName;
};
using PCREDENTIALW = CREDENTIALW *;

BOOL CredReadW(LPCWSTR targetName, DWORD type, DWORD flags, PCREDENTIALW *credential);
BOOL CredWriteW(CREDENTIALW *credential, DWORD flags);
BOOL CredDeleteW(LPCWSTR targetName, DWORD type, DWORD flags);
void CredFree(void *buffer);

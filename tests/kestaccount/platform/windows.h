#pragma once

// As much of the platform's header as the credential store uses, so that the store itself can be
// built and tested on a machine that has none.

#include <cstdint>

using BOOL = int;
using BYTE = unsigned char;
using DWORD = std::uint32_t;
using LPBYTE = BYTE *;
using LPCWSTR = const wchar_t *;
using LPWSTR = wchar_t *;

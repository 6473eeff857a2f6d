// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cstddef>
#include <cstdint>

// The platform's switches, base types and compiler words. The build defines PLATFORM_LINUX or PLATFORM_WINDOWS; 64 bit only.
// TCHAR is char16_t on Linux and wchar_t on Windows, 2 bytes on both.

#ifndef PLATFORM_WINDOWS
#define PLATFORM_WINDOWS 0
#endif
#ifndef PLATFORM_LINUX
#define PLATFORM_LINUX 0
#endif
#define PLATFORM_UNIX PLATFORM_LINUX
#define PLATFORM_MAC 0
#define PLATFORM_IOS 0
#define PLATFORM_ANDROID 0
#define PLATFORM_DESKTOP 1
#define PLATFORM_64BITS 1
#define PLATFORM_LITTLE_ENDIAN 1
#define PLATFORM_TCHAR_IS_4_BYTES 0

typedef std::uint8_t uint8;
typedef std::uint16_t uint16;
typedef std::uint32_t uint32;
typedef unsigned long long uint64;
typedef std::int8_t int8;
typedef std::int16_t int16;
typedef std::int32_t int32;
typedef long long int64;

typedef std::size_t SIZE_T;
typedef std::ptrdiff_t SSIZE_T;
typedef std::intptr_t PTRINT;
typedef std::uintptr_t UPTRINT;
typedef std::nullptr_t TYPE_OF_NULLPTR;

typedef char ANSICHAR;
#if PLATFORM_WINDOWS
#define PLATFORM_UNIX_USE_CHAR16 0
#define PLATFORM_TCHAR_IS_CHAR16 0
typedef wchar_t WIDECHAR;
#else
#define PLATFORM_UNIX_USE_CHAR16 1
#define PLATFORM_TCHAR_IS_CHAR16 1
typedef char16_t WIDECHAR;
#endif
typedef WIDECHAR TCHAR;
typedef uint8 CHAR8;
typedef uint16 CHAR16;
typedef uint32 CHAR32;
typedef CHAR8 UTF8CHAR;
typedef CHAR16 UTF16CHAR;
typedef CHAR32 UTF32CHAR;
static_assert(sizeof(TCHAR) == 2, "TCHAR must have two bytes.");

#if !defined(TEXT)
#if PLATFORM_TCHAR_IS_CHAR16
#define TEXT_PASTE(x) u##x
#else
#define TEXT_PASTE(x) L##x
#endif
#define TEXT(x) TEXT_PASTE(x)
#endif

#if PLATFORM_WINDOWS
#define DLLEXPORT __declspec(dllexport)
#define DLLIMPORT __declspec(dllimport)
#else
#define DLLEXPORT __attribute__((visibility("default")))
#define DLLIMPORT __attribute__((visibility("default")))
#endif

#if defined(_MSC_VER)
#define FORCEINLINE __forceinline
#define FORCENOINLINE __declspec(noinline)
#define LIKELY(x) (x)
#define UNLIKELY(x) (x)
#define PRAGMA_DISABLE_DEPRECATION_WARNINGS __pragma(warning(push)) __pragma(warning(disable : 4996))
#define PRAGMA_ENABLE_DEPRECATION_WARNINGS __pragma(warning(pop))
#else
#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))
#define LIKELY(x) __builtin_expect(!!(x), 1)
#define UNLIKELY(x) __builtin_expect(!!(x), 0)
#define PRAGMA_DISABLE_DEPRECATION_WARNINGS _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wdeprecated-declarations\"")
#define PRAGMA_ENABLE_DEPRECATION_WARNINGS _Pragma("GCC diagnostic pop")
#endif

#define VARARGS
#define CDECL
#define RESTRICT __restrict
#define LINE_TERMINATOR_UNIX TEXT("\n")
#if PLATFORM_WINDOWS
#define LINE_TERMINATOR TEXT("\r\n")
#else
#define LINE_TERMINATOR TEXT("\n")
#endif
#define LINE_TERMINATOR_ANSI "\n"

#define UE_DEPRECATED(Version, Message) [[deprecated(Message)]]
#define UE_NODISCARD
#define UE_NORETURN [[noreturn]]
#define CONSTEXPR constexpr

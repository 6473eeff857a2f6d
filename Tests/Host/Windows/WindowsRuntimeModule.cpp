// Copyright The Tintmill authors. All rights reserved.

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <filesystem>
#include <gtest/gtest.h>

namespace
{
/** Maps the runtime module's library before any test: what the plug-in manager does in the program, and the loader elsewhere. */
const HMODULE RuntimeModule = LoadLibraryExW(std::filesystem::path(TINTMILL_LIBRARY).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);

TEST(WindowsRuntimeModule, IsTheOneThatIsCalled)
{
	ASSERT_NE(nullptr, RuntimeModule) << TINTMILL_LIBRARY;
	EXPECT_EQ(RuntimeModule, GetModuleHandleW(L"UE4Editor-Tintmill.dll"));
}
}

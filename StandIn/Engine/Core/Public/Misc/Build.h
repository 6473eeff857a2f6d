// Copyright The Tintmill authors. All rights reserved.

#pragma once

// What the build type switches on. The build passes UE_BUILD_* and WITH_*; what it leaves out is filled in for a Development editor.

#ifndef UE_BUILD_DEBUG
#define UE_BUILD_DEBUG 0
#endif
#ifndef UE_BUILD_DEVELOPMENT
#define UE_BUILD_DEVELOPMENT 1
#endif
#ifndef UE_BUILD_TEST
#define UE_BUILD_TEST 0
#endif
#ifndef UE_BUILD_SHIPPING
#define UE_BUILD_SHIPPING 0
#endif
#ifndef WITH_EDITOR
#define WITH_EDITOR 1
#endif
#ifndef WITH_EDITORONLY_DATA
#define WITH_EDITORONLY_DATA WITH_EDITOR
#endif
#ifndef WITH_ENGINE
#define WITH_ENGINE 1
#endif
#ifndef IS_MONOLITHIC
#define IS_MONOLITHIC 0
#endif
#ifndef IS_PROGRAM
#define IS_PROGRAM 0
#endif
#ifndef UE_GAME
#define UE_GAME 0
#endif
#ifndef UE_EDITOR
#define UE_EDITOR WITH_EDITOR
#endif
#ifndef UE_SERVER
#define UE_SERVER 0
#endif

#ifndef USE_CHECKS_IN_SHIPPING
#define USE_CHECKS_IN_SHIPPING 0
#endif
#ifndef DO_CHECK
#define DO_CHECK (UE_BUILD_DEBUG || UE_BUILD_DEVELOPMENT || USE_CHECKS_IN_SHIPPING)
#endif
#ifndef DO_GUARD_SLOW
#define DO_GUARD_SLOW UE_BUILD_DEBUG
#endif
#ifndef DO_ENSURE
#define DO_ENSURE (UE_BUILD_DEBUG || UE_BUILD_DEVELOPMENT || USE_CHECKS_IN_SHIPPING)
#endif
#ifndef NO_LOGGING
#define NO_LOGGING UE_BUILD_SHIPPING
#endif

#define WITH_CASE_PRESERVING_NAME WITH_EDITORONLY_DATA
#define ALLOW_DEBUG_FILES (!UE_BUILD_SHIPPING)

// Copyright The Tintmill authors. All rights reserved.

#include "TintmillModule.h"

#include "StandIn/PicturePass.h"
#include "TintmillDisplayManager.h"

#include <gtest/gtest.h>

namespace TintmillModuleTest
{
/** The runtime module as another module sees it: the first virtual function after those of every module. */
class FSeenFromOutside : public IModuleInterface
{
public:
	virtual FTintmillDisplayManager* FirstOwnFunction() = 0;
};

/** Calls through the place in the table, which is the contract; the sanitizer would rather see the true class. */
__attribute__((no_sanitize("vptr"))) static FTintmillDisplayManager* CallFirstOwnFunction(IModuleInterface* Module)
{
	return reinterpret_cast<FSeenFromOutside*>(Module)->FirstOwnFunction();
}

TEST(TintmillModule, HasADisplayManagerBeforeItIsStarted)
{
	FTintmillModule Module;
	EXPECT_NE(Module.GetDisplayManager(), nullptr);
}

TEST(TintmillModule, AlwaysReturnsTheSameDisplayManager)
{
	FTintmillModule Module;
	FTintmillDisplayManager* const First = Module.GetDisplayManager();
	EXPECT_EQ(Module.GetDisplayManager(), First);
}

TEST(TintmillModule, HasItsDisplayManagerRightAfterTheFunctionsOfEveryModule)
{
	FTintmillModule Module;
	EXPECT_EQ(CallFirstOwnFunction(&Module), Module.GetDisplayManager());
}

TEST(TintmillModule, AddsItsPassWhenItStarts)
{
	const int32 Before = StandIn::GetPicturePasses().Num();
	FTintmillModule Module;
	Module.StartupModule();
	const int32 After = StandIn::GetPicturePasses().Num();
	Module.ShutdownModule();
	EXPECT_EQ(After, Before + 1);
}

TEST(TintmillModule, LeavesNoPassBehindWhenItStops)
{
	const int32 Before = StandIn::GetPicturePasses().Num();
	FTintmillModule Module;
	Module.StartupModule();
	Module.ShutdownModule();
	EXPECT_EQ(StandIn::GetPicturePasses().Num(), Before);
}
}

// Copyright The Tintmill authors. All rights reserved.

#include "Misc/CoreDelegates.h"

#include "StandIn/Registrations.h"
#include "Support/Text.h"
#include "gtest/gtest.h"

namespace
{
class FCoreDelegatesListener
{
public:
	void OnEvent() { ++NumCalls; }

	int32 NumCalls = 0;
};

/** Names of the delegates that are bound to an object. */
std::string ListBindingsTo(const void* Object)
{
	std::string Names;
	for (const StandIn::FRegistration& Entry : StandIn::ListRegistrations())
	{
		Names += Entry.Owner == Object ? ToStd(Entry.Name) + ";" : "";
	}
	return Names;
}
}

TEST(CoreDelegates, BoundObjectIsCalledUntilItIsRemoved)
{
	FCoreDelegatesListener Listener;
	FCoreDelegates::OnFEngineLoopInitComplete.AddRaw(&Listener, &FCoreDelegatesListener::OnEvent);
	FCoreDelegates::OnFEngineLoopInitComplete.Broadcast();
	FCoreDelegates::OnFEngineLoopInitComplete.RemoveAll(&Listener);
	FCoreDelegates::OnFEngineLoopInitComplete.Broadcast();
	EXPECT_EQ(1, Listener.NumCalls);
}

TEST(CoreDelegates, BindingsAreListedByObject)
{
	FCoreDelegatesListener Listener;
	FCoreDelegates::OnPreExit.AddRaw(&Listener, &FCoreDelegatesListener::OnEvent);
	EXPECT_EQ("FCoreDelegates::OnPreExit;", ListBindingsTo(&Listener));
	FCoreDelegates::OnPreExit.RemoveAll(&Listener);
	EXPECT_EQ("", ListBindingsTo(&Listener));
}

// Copyright The Tintmill authors. All rights reserved.

#include "Delegates/Delegate.h"

#include "StandIn/Registrations.h"
#include "Support/Printers.h"
#include "gtest/gtest.h"
#include <functional>

DECLARE_MULTICAST_DELEGATE_OneParam(FTextEvent, std::string&)

	class FEventOwner
{
public:
	DECLARE_EVENT_OneParam(FEventOwner, FHappened, int32) FHappened& OnHappened() { return Happened; }
	void Happen() { Happened.Broadcast(7); }

private:
	FHappened Happened;
};

namespace
{
/** Writes its letter when it is called, then does what it was told to do. */
class FWriter
{
public:
	explicit FWriter(char InLetter)
		: Letter(InLetter)
	{}
	void Write(std::string& Out)
	{
		Out += Letter;
		if (Then)
		{
			Then();
		}
	}
	void WriteUpper(std::string& Out) const { Out += (char)(Letter - 32); }

	char Letter;
	std::function<void()> Then;
};

std::string Called(const FTextEvent& Event)
{
	std::string Out;
	Event.Broadcast(Out);
	return Out;
}

/** Four writers, added in order of their letters. */
class TMulticastDelegateTest : public testing::Test
{
protected:
	TMulticastDelegateTest()
	{
		for (FWriter* Writer : {&A, &B, &C, &D})
		{
			Handles.Add(Event.AddRaw(Writer, &FWriter::Write));
		}
	}

	FWriter A{'a'};
	FWriter B{'b'};
	FWriter C{'c'};
	FWriter D{'d'};
	FTextEvent Event;
	TArray<FDelegateHandle> Handles;
};
}

TEST_F(TMulticastDelegateTest, LastAddedIsCalledFirst)
{
	EXPECT_EQ("dcba", Called(Event));
}

TEST_F(TMulticastDelegateTest, RemovalMovesTheLastBindingIntoTheHole)
{
	EXPECT_TRUE(Event.Remove(Handles[0]));
	EXPECT_EQ("cbd", Called(Event));
}

TEST_F(TMulticastDelegateTest, RemoveAllMovesTheLastBindingIntoTheHoleToo)
{
	EXPECT_EQ(1, Event.RemoveAll(&B));
	EXPECT_EQ("cda", Called(Event));
}

TEST_F(TMulticastDelegateTest, RemovingTheLastKeepsTheOrderOfTheOthers)
{
	Event.Remove(Handles[3]);
	EXPECT_EQ("cba", Called(Event));
}

TEST_F(TMulticastDelegateTest, RemovingTwiceOrAnInvalidHandleDoesNothing)
{
	EXPECT_TRUE(Event.Remove(Handles[1]));
	EXPECT_FALSE(Event.Remove(Handles[1]));
	EXPECT_FALSE(Event.Remove(FDelegateHandle()));
	EXPECT_EQ("cda", Called(Event));
}

TEST_F(TMulticastDelegateTest, RemoveAllTakesEveryBindingOfTheObject)
{
	Event.AddRaw(&B, &FWriter::Write);
	Event.AddRaw(&B, &FWriter::WriteUpper);
	EXPECT_EQ("Bbdcba", Called(Event));
	EXPECT_EQ(3, Event.RemoveAll(&B));
	EXPECT_EQ(std::string::npos, Called(Event).find_first_of("bB"));
	EXPECT_EQ(0, Event.RemoveAll(&B));
}

TEST_F(TMulticastDelegateTest, RemoveAllNeverTakesLambdas)
{
	Event.AddLambda([](std::string& Out) { Out += 'L'; });
	Event.RemoveAll(nullptr);
	EXPECT_EQ("Ldcba", Called(Event));
}

TEST_F(TMulticastDelegateTest, SameObjectAndMethodMayBeAddedTwice)
{
	const FDelegateHandle Second = Event.AddRaw(&A, &FWriter::Write);
	EXPECT_NE(Handles[0], Second);
	EXPECT_EQ("adcba", Called(Event));
	Event.Remove(Handles[0]);
	EXPECT_EQ("dcba", Called(Event));
}

TEST_F(TMulticastDelegateTest, BindingsAddedDuringABroadcastWaitForTheNext)
{
	FWriter Late('l');
	D.Then = [&] { Event.AddRaw(&Late, &FWriter::Write); };
	EXPECT_EQ("dcba", Called(Event));
	D.Then = nullptr;
	EXPECT_EQ("ldcba", Called(Event));
}

TEST_F(TMulticastDelegateTest, BindingRemovedBeforeItsTurnIsNotCalled)
{
	D.Then = [&] { Event.Remove(Handles[1]); };
	EXPECT_EQ("dca", Called(Event));
	D.Then = nullptr;
	EXPECT_EQ("cda", Called(Event));
}

TEST_F(TMulticastDelegateTest, BindingMayRemoveItself)
{
	C.Then = [&] { Event.RemoveAll(&C); };
	EXPECT_EQ("dcba", Called(Event));
	EXPECT_EQ("dba", Called(Event));
}

TEST_F(TMulticastDelegateTest, BindingMayRemoveOneThatWasCalled)
{
	A.Then = [&] { Event.Remove(Handles[3]); };
	EXPECT_EQ("dcba", Called(Event));
	EXPECT_EQ("cba", Called(Event));
}

TEST_F(TMulticastDelegateTest, ClearDuringABroadcastStopsTheRest)
{
	C.Then = [&] { Event.Clear(); };
	EXPECT_EQ("dc", Called(Event));
	EXPECT_FALSE(Event.IsBound());
	EXPECT_EQ("", Called(Event));
}

TEST_F(TMulticastDelegateTest, BroadcastsMayNest)
{
	std::string Inner;
	bool bNested = false;
	C.Then = [&] {
		if (!bNested)
		{
			bNested = true;
			Event.Remove(Handles[0]);
			Inner = Called(Event);
		}
	};
	EXPECT_EQ("dcb", Called(Event));
	EXPECT_EQ("dcb", Inner);
	EXPECT_EQ("cbd", Called(Event));
}

TEST_F(TMulticastDelegateTest, ManyAddedDuringABroadcastDoNotDisturbIt)
{
	D.Then = [&] {
		for (int32 Count = 0; Count < 100; ++Count)
		{
			Event.AddLambda([](std::string&) {});
		}
	};
	EXPECT_EQ("dcba", Called(Event));
}

TEST_F(TMulticastDelegateTest, CopyHasItsOwnBindings)
{
	FTextEvent Copy(Event);
	Event.Clear();
	EXPECT_EQ("dcba", Called(Copy));
	EXPECT_TRUE(Copy.Remove(Handles[0]));
}

TEST_F(TMulticastDelegateTest, AddingAnUnboundDelegateAddsNothing)
{
	EXPECT_FALSE(Event.Add(FTextEvent::FDelegate()).IsValid());
	EXPECT_EQ("dcba", Called(Event));
}

TEST_F(TMulticastDelegateTest, ListsItsUserObjects)
{
	Event.AddLambda([](std::string&) {});
	EXPECT_EQ((TArray<const void*>{&A, &B, &C, &D, nullptr}), Event.ListUserObjects());
	EXPECT_TRUE(Event.IsBoundToObject(&C));
	Event.RemoveAll(&C);
	EXPECT_FALSE(Event.IsBoundToObject(&C));
}

TEST(TMulticastDelegate, GoneSharedObjectsAreSkippedAndForgotten)
{
	FTextEvent Event;
	FWriter First('f');
	Event.AddRaw(&First, &FWriter::Write);
	TSharedPtr<FWriter> Shared = MakeShared<FWriter>('s');
	Event.AddSP(Shared.ToSharedRef(), &FWriter::Write);
	EXPECT_EQ("sf", Called(Event));
	Shared.Reset();
	EXPECT_EQ(1, Event.ListUserObjects().Num());
	EXPECT_EQ("f", Called(Event));
}

TEST(TMulticastDelegate, GoneSharedObjectAloneIsNotBound)
{
	FTextEvent Event;
	{
		const TSharedRef<FWriter> Shared = MakeShared<FWriter>('s');
		Event.AddSP(Shared, &FWriter::Write);
		EXPECT_TRUE(Event.IsBound());
	}
	EXPECT_FALSE(Event.IsBound());
}

TEST(TMulticastDelegate, RemoveAllComparesTheAddressAsItWasGiven)
{
	class FBase
	{
	public:
		int32 Padding = 0;
	};
	class FBoth : public FBase, public FWriter
	{
	public:
		FBoth()
			: FWriter('x')
		{}
	};
	FBoth Both;
	FTextEvent Event;
	Event.AddRaw(static_cast<FWriter*>(&Both), &FWriter::Write);
	EXPECT_EQ(0, Event.RemoveAll(&Both));
	EXPECT_EQ(1, Event.RemoveAll(static_cast<FWriter*>(&Both)));
}

TEST(TMulticastDelegate, EventsCallTheirListeners)
{
	FEventOwner Owner;
	int32 Seen = 0;
	Owner.OnHappened().AddLambda([&Seen](int32 Value) { Seen = Value; });
	Owner.Happen();
	EXPECT_EQ(7, Seen);
}

TEST(Registrations, GlobalDelegatesListTheirBindingsWithOwners)
{
	static FSimpleMulticastDelegate Event;
	class FListener
	{
	public:
		void Hear() {}
	};
	FListener Listener;
	StandIn::AddDelegate(TEXT("Test::Event"), Event);
	Event.AddRaw(&Listener, &FListener::Hear);
	int32 NumFound = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		if (Registration.Owner == &Listener)
		{
			++NumFound;
			EXPECT_EQ("Delegates", ToStd(Registration.Registry));
			EXPECT_EQ("Test::Event", ToStd(Registration.Name));
		}
	}
	EXPECT_EQ(1, NumFound);
	Event.RemoveAll(&Listener);
	StandIn::RemoveRegistry(TEXT("Test::Event"));
}

TEST(Registrations, RegistryOfTheSameNameReplacesTheOlderOne)
{
	const auto AddEntry = [](const TCHAR* Name) {
		return [Name](TArray<StandIn::FRegistration>& Out) {
			Out.Add(StandIn::FRegistration{FString(TEXT("TestRegistry")), FString(Name), nullptr});
		};
	};
	StandIn::AddRegistry(TEXT("TestRegistry"), AddEntry(TEXT("Old")));
	StandIn::AddRegistry(TEXT("TestRegistry"), AddEntry(TEXT("New")));
	std::string Names;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Names += Registration.Registry == TEXT("TestRegistry") ? ToStd(Registration.Name) : "";
	}
	EXPECT_EQ("New", Names);
	StandIn::RemoveRegistry(TEXT("TestRegistry"));
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		EXPECT_NE("TestRegistry", ToStd(Registration.Registry));
	}
}

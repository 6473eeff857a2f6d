// Copyright The Tintmill authors. All rights reserved.

#include "Delegates/Delegate.h"

#include "Support/Printers.h"
#include "gtest/gtest.h"

DECLARE_DELEGATE_OneParam(FNumberDelegate, int32) DECLARE_DELEGATE_RetVal_TwoParams(int32, FSumDelegate, int32, int32)
	DECLARE_DELEGATE_TwoParams(FReferenceDelegate, int32&, const FString&)

		namespace
{
	class FReceiver : public TSharedFromThis<FReceiver>
	{
	public:
		void Take(int32 Value) { Sum += Value; }
		void TakeMore(int32 Value, FString Suffix, int32 Factor)
		{
			Sum += Value * Factor;
			Text += Suffix;
		}
		void Look(int32 Value) const { LastSeen = Value; }
		int32 Add(int32 A, int32 B) const { return A + B; }
		FNumberDelegate MakeDelegateFromThis() { return FNumberDelegate::CreateSP(this, &FReceiver::Take); }

		int32 Sum = 0;
		FString Text;
		mutable int32 LastSeen = 0;
	};

	class FDerivedReceiver : public FReceiver
	{};

	int32 StaticSum = 0;

	void TakeStatic(int32 Value)
	{
		StaticSum += Value;
	}

	void TakeStaticScaled(int32 Value, int32 Factor)
	{
		StaticSum += Value * Factor;
	}
}

TEST(TDelegate, DefaultIsUnboundAndDoesNothing)
{
	const FNumberDelegate Delegate;
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(1));
	EXPECT_FALSE(Delegate.GetHandle().IsValid());
}

TEST(TDelegate, RawBindingCallsTheObject)
{
	FReceiver Receiver;
	FNumberDelegate Delegate = FNumberDelegate::CreateRaw(&Receiver, &FReceiver::Take);
	EXPECT_TRUE(Delegate.IsBound());
	EXPECT_TRUE(Delegate.ExecuteIfBound(3));
	Delegate.Execute(4);
	EXPECT_EQ(7, Receiver.Sum);
}

TEST(TDelegate, PayloadComesAfterTheCallsOwnArguments)
{
	FReceiver Receiver;
	const FNumberDelegate Delegate = FNumberDelegate::CreateRaw(&Receiver, &FReceiver::TakeMore, FString(TEXT("!")), 10);
	Delegate.Execute(2);
	Delegate.Execute(3);
	EXPECT_EQ(50, Receiver.Sum);
	EXPECT_EQ("!!", ToStd(Receiver.Text));
}

TEST(TDelegate, PayloadIsCopiedWhenItIsBound)
{
	FReceiver Receiver;
	int32 Factor = 2;
	const FNumberDelegate Delegate = FNumberDelegate::CreateRaw(&Receiver, &FReceiver::TakeMore, FString(), Factor);
	Factor = 100;
	Delegate.Execute(1);
	EXPECT_EQ(2, Receiver.Sum);
}

TEST(TDelegate, ConstMethodsBindToConstAndOtherObjects)
{
	const FReceiver ConstReceiver;
	FNumberDelegate::CreateRaw(&ConstReceiver, &FReceiver::Look).Execute(5);
	EXPECT_EQ(5, ConstReceiver.LastSeen);
	FReceiver Receiver;
	FNumberDelegate::CreateRaw(&Receiver, &FReceiver::Look).Execute(6);
	EXPECT_EQ(6, Receiver.LastSeen);
}

TEST(TDelegate, BaseMethodBindsToADerivedObject)
{
	FDerivedReceiver Receiver;
	FNumberDelegate::CreateRaw(&Receiver, &FReceiver::Take).Execute(5);
	EXPECT_EQ(5, Receiver.Sum);
}

TEST(TDelegate, StaticFunctionsAndTheirPayload)
{
	StaticSum = 0;
	FNumberDelegate::CreateStatic(&TakeStatic).Execute(2);
	FNumberDelegate::CreateStatic(&TakeStaticScaled, 100).Execute(3);
	EXPECT_EQ(302, StaticSum);
}

TEST(TDelegate, LambdaKeepsItsOwnState)
{
	int32 Seen = 0;
	FNumberDelegate Delegate;
	Delegate.BindLambda([&Seen, Calls = 0](int32 Value) mutable { Seen = Value * 10 + ++Calls; });
	Delegate.Execute(1);
	Delegate.Execute(2);
	EXPECT_EQ(22, Seen);
}

TEST(TDelegate, ReturnValueIsHandedBack)
{
	FReceiver Receiver;
	const FSumDelegate Delegate = FSumDelegate::CreateRaw(&Receiver, &FReceiver::Add);
	EXPECT_EQ(5, Delegate.Execute(2, 3));
}

TEST(TDelegate, ReferencesReachTheCaller)
{
	const FReferenceDelegate Delegate =
		FReferenceDelegate::CreateLambda([](int32& OutLength, const FString& Text) { OutLength = Text.Len(); });
	int32 Length = 0;
	Delegate.Execute(Length, TEXT("four"));
	EXPECT_EQ(4, Length);
}

TEST(TDelegate, SharedBindingEndsWithItsObject)
{
	TSharedPtr<FReceiver> Receiver = MakeShared<FReceiver>();
	FNumberDelegate Delegate = FNumberDelegate::CreateSP(Receiver.ToSharedRef(), &FReceiver::Take);
	EXPECT_TRUE(Delegate.ExecuteIfBound(1));
	EXPECT_EQ(1, Receiver->Sum);
	EXPECT_EQ(1, Receiver.GetSharedReferenceCount());
	Receiver.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(1));
}

TEST(TDelegate, SharedBindingFromThisFindsItsPointer)
{
	const TSharedRef<FReceiver> Receiver = MakeShared<FReceiver>();
	Receiver->MakeDelegateFromThis().Execute(3);
	EXPECT_EQ(3, Receiver->Sum);
}

TEST(TDelegate, ObjectStaysAliveWhileItIsCalled)
{
	class FSuicidal
	{
	public:
		explicit FSuicidal(TSharedPtr<FSuicidal>* InOwner)
			: Owner(InOwner)
		{}
		void Die(int32 Value)
		{
			Owner->Reset();
			Seen = Value;
			*Result = Seen;
		}
		TSharedPtr<FSuicidal>* Owner;
		int32 Seen = 0;
		int32* Result = nullptr;
	};
	int32 Result = 0;
	TSharedPtr<FSuicidal> Owner;
	Owner = MakeShared<FSuicidal>(&Owner);
	Owner->Result = &Result;
	const FNumberDelegate Delegate = FNumberDelegate::CreateSP(Owner.ToSharedRef(), &FSuicidal::Die);
	EXPECT_TRUE(Delegate.ExecuteIfBound(8));
	EXPECT_EQ(8, Result);
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(TDelegate, ThreadSafeSharedBindingEndsWithItsObject)
{
	TSharedPtr<FDerivedReceiver, ESPMode::ThreadSafe> Receiver = MakeShared<FDerivedReceiver, ESPMode::ThreadSafe>();
	const FNumberDelegate Delegate = FNumberDelegate::CreateThreadSafeSP(Receiver.ToSharedRef(), &FReceiver::Take);
	EXPECT_TRUE(Delegate.ExecuteIfBound(1));
	Receiver.Reset();
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(TDelegate, BindingIsKnownByItsObjectsAddress)
{
	FReceiver Receiver;
	FReceiver Other;
	const FNumberDelegate Delegate = FNumberDelegate::CreateRaw(&Receiver, &FReceiver::Take);
	EXPECT_TRUE(Delegate.IsBoundToObject(&Receiver));
	EXPECT_FALSE(Delegate.IsBoundToObject(&Other));
	EXPECT_FALSE(FNumberDelegate::CreateLambda([](int32) {}).IsBoundToObject(nullptr));
}

TEST(TDelegate, CopiesCallTheSameAndShareTheHandle)
{
	FReceiver Receiver;
	FNumberDelegate Delegate = FNumberDelegate::CreateRaw(&Receiver, &FReceiver::Take);
	const FNumberDelegate Copy(Delegate);
	EXPECT_EQ(Delegate.GetHandle(), Copy.GetHandle());
	Delegate.Unbind();
	EXPECT_FALSE(Delegate.IsBound());
	Copy.Execute(2);
	EXPECT_EQ(2, Receiver.Sum);
}

TEST(TDelegate, BindingAnewReplacesTheOldBinding)
{
	FReceiver First;
	FReceiver Second;
	FNumberDelegate Delegate;
	Delegate.BindRaw(&First, &FReceiver::Take);
	Delegate.BindRaw(&Second, &FReceiver::Take);
	Delegate.Execute(1);
	EXPECT_EQ(0, First.Sum);
	EXPECT_EQ(1, Second.Sum);
}

TEST(TDelegateDeathTest, RawBindingToNullIsFatal)
{
	EXPECT_DEATH(FNumberDelegate::CreateRaw((FReceiver*)nullptr, &FReceiver::Take),
		"Assertion failed: InUserObject != nullptr && MethodPtr != nullptr ");
}

TEST(TDelegateDeathTest, UnboundExecuteIsFatal)
{
	const FNumberDelegate Delegate;
	EXPECT_DEATH(Delegate.Execute(1), "Assertion failed");
}

TEST(TDelegateDeathTest, SharedBindingOfAnUnownedObjectIsFatal)
{
	FReceiver Receiver;
	EXPECT_DEATH(Receiver.MakeDelegateFromThis(), "Assertion failed: SharedThis.Get\\(\\) == this ");
}

TEST(TDelegateDeathTest, BindingByFunctionNameIsRefused)
{
	FReceiver Receiver;
	EXPECT_DEATH(FNumberDelegate::CreateUFunction(&Receiver, FName(TEXT("Take"))), "not in this stand-in: TDelegate::CreateUFunction");
}

TEST(FDelegateHandle, HandlesAreNeverGivenTwice)
{
	const FDelegateHandle First(FDelegateHandle::GenerateNewHandle);
	FDelegateHandle Second(FDelegateHandle::GenerateNewHandle);
	EXPECT_TRUE(First.IsValid());
	EXPECT_NE(First, Second);
	Second.Reset();
	EXPECT_FALSE(Second.IsValid());
	EXPECT_EQ(FDelegateHandle(), Second);
}

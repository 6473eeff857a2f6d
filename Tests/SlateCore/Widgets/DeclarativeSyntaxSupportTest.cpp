// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Support/SlateWidgets.h"
#include "Widgets/SCompoundWidget.h"
#include "gtest/gtest.h"
#include <memory>

namespace
{
DECLARE_DELEGATE_OneParam(FOnTestEvent, int32)

	/** Has every kind of argument. */
	class SArgumentTaker : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SArgumentTaker)
		: _Number(7)
	{}
	SLATE_ARGUMENT(int32, Number)
	SLATE_ATTRIBUTE(FText, Label)
	SLATE_EVENT(FOnTestEvent, OnEvent)
	SLATE_NAMED_SLOT(FArguments, Header)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		Number = InArgs._Number;
		Label = InArgs._Label;
		OnEvent = InArgs._OnEvent;
		Header = InArgs._Header.Widget;
		ChildSlot[InArgs._Content.Widget];
		bCouldShareInConstruct = AsShared()->GetType() == FName(TEXT("SArgumentTaker"));
	}

	int32 Number = 0;
	TAttribute<FText> Label;
	FOnTestEvent OnEvent;
	TSharedPtr<SWidget> Header;
	bool bCouldShareInConstruct = false;
};

/** Looks at its exposed pointer while it is constructed, and takes required arguments. */
class SOrderWatcher : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SOrderWatcher)
		: _Exposed(nullptr)
	{}
	SLATE_ARGUMENT(TSharedPtr<SOrderWatcher>*, Exposed)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, int32 InFirst, std::unique_ptr<int32> InSecond)
	{
		bWasAssigned = InArgs._Exposed != nullptr && InArgs._Exposed->Get() == this;
		Sum = InFirst + *InSecond;
	}

	bool bWasAssigned = false;
	int32 Sum = 0;
};

/** Binds its own members. */
class SBinder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBinder) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&)
	{
		ChildSlot[SAssignNew(Taker, SArgumentTaker).Label(this, &SBinder::GetLabel).OnEvent(this, &SBinder::HandleEvent, 100)];
	}

	FText GetLabel() const { return FText::FromString(Text); }
	void HandleEvent(int32 Value, int32 Payload) { Sum += Value + Payload; }

	FString Text = TEXT("first");
	int32 Sum = 0;
	TSharedPtr<SArgumentTaker> Taker;
};
}

TEST(SNew, KeepsDefaultsOfArgumentsThatAreNotGiven)
{
	const TSharedRef<SArgumentTaker> Widget = SNew(SArgumentTaker);
	EXPECT_EQ(7, Widget->Number);
	EXPECT_FALSE(Widget->Label.IsSet());
	EXPECT_FALSE(Widget->OnEvent.IsBound());
	EXPECT_TRUE(Widget->Header == SNullWidget::NullWidget);
}

TEST(SNew, TakesArgumentsAndSlotsInAnyOrder)
{
	const TSharedRef<STestBox> Content = MakeBox(1, 1);
	const TSharedRef<STestBox> Header = MakeBox(1, 1);
	const TSharedRef<SArgumentTaker> Widget = SNew(SArgumentTaker).Header()[Header].Number(3)[Content];
	EXPECT_EQ(3, Widget->Number);
	EXPECT_TRUE(Widget->Header == Header);
	EXPECT_TRUE(Widget->GetChildren()->GetChildAt(0) == Content);
}

TEST(SNew, LetsConstructShareTheWidget)
{
	EXPECT_TRUE((SNew(SArgumentTaker))->bCouldShareInConstruct);
}

TEST(SNew, ForwardsRequiredArgumentsEvenThoseThatCanOnlyMove)
{
	EXPECT_EQ(42, (SNew(SOrderWatcher, 2, std::make_unique<int32>(40)))->Sum);
}

TEST(SAssignNew, AssignsBeforeConstructRuns)
{
	TSharedPtr<SOrderWatcher> Watcher;
	SAssignNew(Watcher, SOrderWatcher, 1, std::make_unique<int32>(1)).Exposed(&Watcher);
	EXPECT_TRUE(Watcher->bWasAssigned);
}

TEST(SAssignNew, AlsoAssignsWeakPointersAndReferences)
{
	TWeakPtr<SWidget> Weak;
	TSharedRef<SWidget> Reference = SNullWidget::NullWidget;
	const TSharedRef<SWidget> First = SAssignNew(Weak, SArgumentTaker);
	const TSharedRef<SWidget> Second = SAssignNew(Reference, SArgumentTaker);
	EXPECT_TRUE(Weak.Pin() == First);
	EXPECT_TRUE(Reference == Second);
}

TEST(SLATE_ATTRIBUTE, PollsABoundMemberEachTime)
{
	const TSharedRef<SBinder> Binder = SNew(SBinder);
	EXPECT_EQ("first", ToStd(Binder->Taker->Label.Get().ToString()));
	Binder->Text = TEXT("second");
	EXPECT_EQ("second", ToStd(Binder->Taker->Label.Get().ToString()));
}

TEST(SLATE_ATTRIBUTE, TakesALambda)
{
	const TSharedRef<SArgumentTaker> Widget = SNew(SArgumentTaker).Label_Lambda([]() { return FText::FromString(TEXT("lambda")); });
	EXPECT_EQ("lambda", ToStd(Widget->Label.Get().ToString()));
}

TEST(SLATE_EVENT, CallsABoundMemberWithItsPayload)
{
	const TSharedRef<SBinder> Binder = SNew(SBinder);
	Binder->Taker->OnEvent.ExecuteIfBound(5);
	EXPECT_EQ(105, Binder->Sum);
}

TEST(SLATE_EVENT, TakesALambda)
{
	int32 Received = 0;
	const TSharedRef<SArgumentTaker> Widget = SNew(SArgumentTaker).OnEvent_Lambda([&Received](int32 Value) { Received = Value; });
	Widget->OnEvent.ExecuteIfBound(9);
	EXPECT_EQ(9, Received);
}

TEST(SLATE_EVENT, ForgetsAnOwnerThatIsGone)
{
	TSharedPtr<SArgumentTaker> Taker;
	{
		const TSharedRef<SBinder> Binder = SNew(SBinder);
		Taker = Binder->Taker;
	}
	EXPECT_FALSE(Taker->OnEvent.IsBound());
}

TEST(SNew, NotesTypeTagEnablednessAndVisibilityOfEveryWidget)
{
	const TSharedRef<SArgumentTaker> Widget =
		SNew(SArgumentTaker).Tag(FName(TEXT("Here"))).IsEnabled(false).Visibility(EVisibility::Hidden).RenderOpacity(0.5f);
	EXPECT_EQ("SArgumentTaker", ToStd(Widget->GetTypeAsString()));
	EXPECT_EQ("Here", ToStd(Widget->GetTag()));
	EXPECT_FALSE(Widget->IsEnabled());
	EXPECT_EQ("Hidden", ToStd(Widget->GetVisibility().ToString()));
	EXPECT_EQ(0.5f, Widget->GetRenderOpacity());
}

TEST(SNew, PollsTheAttributesOfEveryWidget)
{
	bool bEnabled = true;
	const TSharedRef<SArgumentTaker> Widget = SNew(SArgumentTaker).IsEnabled_Lambda([&bEnabled]() { return bEnabled; });
	EXPECT_TRUE(Widget->IsEnabled());
	bEnabled = false;
	EXPECT_FALSE(Widget->IsEnabled());
}

template <typename WidgetType>
concept CanBeMadeWithNew = requires
{
	new WidgetType();
};

TEST(SWidget, CannotBeMadeWithPlainNew)
{
	EXPECT_FALSE(CanBeMadeWithNew<SArgumentTaker>);
}

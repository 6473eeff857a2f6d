// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Styling/SlateBrush.h"
#include "Widgets/SCompoundWidget.h"

class STextBlock;
class SVerticalBox;

// Short messages in the corner of the editor. Left out: buttons, check boxes, throbbers, progress.

/** What a notification shows and for how long. */
struct FNotificationInfo
{
	/** Makes the information of a text. */
	FNotificationInfo(const FText& InText)
		: Text(InText)
		, Image(nullptr)
		, FadeInDuration(0.5f)
		, FadeOutDuration(2.0f)
		, ExpireDuration(1.0f)
		, bFireAndForget(true)
		, bUseSuccessFailIcons(true)
	{}

	/** What it says. */
	TAttribute<FText> Text;

	/** A picture beside it, or null. */
	const FSlateBrush* Image;

	/** How long it takes to appear, in seconds. */
	float FadeInDuration;

	/** How long it takes to disappear, in seconds. */
	float FadeOutDuration;

	/** How long it stays, in seconds. */
	float ExpireDuration;

	/** Whether it goes by itself. */
	bool bFireAndForget;

	/** Whether its state is shown; accepted and ignored. */
	bool bUseSuccessFailIcons;

	/** What is called when its link is clicked; without it there is no link. */
	FSimpleDelegate Hyperlink;

	/** The link's text. */
	TAttribute<FText> HyperlinkText;
};

/** One notification. */
class SLATE_API SNotificationItem : public SCompoundWidget
{
public:
	/** How what it is about stands. */
	enum ECompletionState
	{
		CS_None,
		CS_Pending,
		CS_Success,
		CS_Fail
	};

	SLATE_BEGIN_ARGS(SNotificationItem) {}
	SLATE_END_ARGS()

	/** Makes the widget. */
	SNotificationItem();

	/** Takes what it shows. */
	void Construct(const FArguments& InArgs, const FNotificationInfo& Info);

	/** Sets what it says. */
	void SetText(const TAttribute<FText>& InText);

	/** Returns what it says. */
	FText GetText() const;

	/** Sets how long it stays, in seconds. */
	void SetExpireDuration(float InExpireDuration) { ExpireDuration = InExpireDuration; }

	/** Sets how what it is about stands. */
	void SetCompletionState(ECompletionState State) { CompletionState = State; }

	/** Returns how what it is about stands. */
	ECompletionState GetCompletionState() const { return CompletionState; }

	/** Lets it stay for its time, then disappear. */
	void ExpireAndFadeout();

	/** Lets it disappear now. */
	void Fadeout();

	/** Goes on in time by seconds; says whether it is still there. */
	bool Advance(float DeltaTime);

private:
	FReply OnHyperlinkClicked();

	TSharedPtr<STextBlock> TextBlock;
	FSimpleDelegate Hyperlink;
	ECompletionState CompletionState;
	float FadeInDuration;
	float FadeOutDuration;
	float ExpireDuration;
	float Age;
	float TimeToFade;
	float FadeAge;
	bool bExpiring;
	bool bFading;
};

/** The notifications of a window, the newest at the bottom. */
class SLATE_API SNotificationList : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SNotificationList) {}
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Adds a notification. */
	TSharedRef<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	/** Returns the notifications that are there. */
	const TArray<TSharedRef<SNotificationItem>>& GetItems() const { return Items; }

	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;

private:
	TSharedPtr<SVerticalBox> Box;
	TArray<TSharedRef<SNotificationItem>> Items;
};

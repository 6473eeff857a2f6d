// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Misc/Attribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include <vector>

struct FSlateBrush;
class SHorizontalBox;

// A row of tabs: one in front, the others to choose from.

namespace TintmillHost
{
DECLARE_DELEGATE_OneParam(FOnTab, FName);

/** A tab as a strip shows it. */
struct FTabLook
{
	FName Name;
	TAttribute<FText> Label;

	/** A brush of 16 units, or null. */
	const FSlateBrush* Icon = nullptr;

	/** Whether it has a cross that closes it. */
	bool bClosable = false;

	/** Whether it is there; unset means yes. */
	TAttribute<EVisibility> Visibility;
};

/** The head of one tab. A press chooses it, as do Enter and the space bar. */
class STabHead : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(STabHead) {}
	SLATE_ATTRIBUTE(FName, Front)
	SLATE_EVENT(FOnTab, OnChosen)
	SLATE_EVENT(FOnTab, OnClosed)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FTabLook& InLook);

	/** The tab's name. */
	const FName& GetName() const { return Name; }

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	TSharedRef<SWidget> MakeCloseButton();
	bool IsInFront() const { return Front.Get() == Name; }
	const FSlateBrush* GetBackground() const;
	const FSlateBrush* GetLine() const;
	FSlateColor GetTextColor() const;
	FReply OnCloseClicked();

	FName Name;
	TAttribute<FName> Front;
	FOnTab OnChosen;
	FOnTab OnClosed;
};

/** A row of tabs. Left and Right move along it. */
class STabStrip : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(STabStrip) {}
	/** The name of the tab in front. */
	SLATE_ATTRIBUTE(FName, Front)
	SLATE_EVENT(FOnTab, OnChosen)
	SLATE_EVENT(FOnTab, OnClosed)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const std::vector<FTabLook>& Tabs);

	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	std::vector<TSharedRef<STabHead>> Heads;
};
}

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Misc/Attribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include <string>

class SHorizontalBox;

// The line at the bottom of the window.

namespace TintmillHost
{
/** Says what project is open, what is worked in and how it looks, whether it plays, what is being worked on, and how many notices stand. */
class SStatusLine : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SStatusLine)
		: _ReadOnly(false)
	{}
	SLATE_ARGUMENT(FText, ProjectName)
	/** The project's folder, for the tool tip. */
	SLATE_ARGUMENT(FText, ProjectFolder)
	/** Whether settings cannot be saved in the project. */
	SLATE_ATTRIBUTE(bool, ReadOnly)
	/** Is called when the number of notices is clicked. */
	SLATE_EVENT(FSimpleDelegate, OnNoticesClicked)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;

private:
	void AddWords(const TSharedRef<SHorizontalBox>& Row, std::string SStatusLine::*Words);
	TSharedRef<SWidget> MakeProgress();
	TSharedRef<SWidget> MakeNotices();
	FText GetProjectWords() const;
	FReply OnNotices();

	FText ProjectName;
	TAttribute<bool> ReadOnly;
	FSimpleDelegate OnNoticesClicked;

	/** What it says, from the last tick. */
	std::string PaneWords;
	std::string PlayWords;
	std::string NoticeWords;
};
}

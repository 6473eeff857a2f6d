// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "StandIn/Notices.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include <map>
#include <string>

class STextBlock;
class SVerticalBox;

// The notices in the lower right corner of the window.

namespace TintmillHost
{
class SNoticeBox;

/** Shows what stands in the engine's list of notices, the newest at the bottom and only a few at once. Lies over the window and takes input only where a box is. */
class SNoticeList : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SNoticeList) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Shows everything that stands, also what was closed or has faded. */
	void ShowAgain();

	/** Notices that are on the screen or wait for a place. */
	int32 Num() const { return Boxes.Num(); }

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;

private:
	void OnNotice(const StandIn::FNotice& Notice);
	bool TakeNotices();
	void Arrange();
	float GetTextWidth() const;
	FText DescribeRest() const;
	FReply OnAllClosed();

	/** Oldest first; the last few of them are in the column. */
	TArray<TSharedRef<SNoticeBox>> Boxes;

	/** The texts of the notices that were shown already, by their keys. */
	std::map<std::string, FString> Known;

	TSharedPtr<SVerticalBox> Column;
	float Width = 0.0f;
};
}

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "StandIn/Notices.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

// One notice on the screen.

namespace TintmillHost
{
/** A dark box with a warning sign, the notice's sentence, and a button that closes it. Warnings go by themselves. */
class SNoticeBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SNoticeBox) {}
	/** Width of the sentence, in Slate units. */
	SLATE_ATTRIBUTE(float, TextWidth)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const StandIn::FNotice& InNotice);

	/** The notice it shows. */
	const StandIn::FNotice& GetNotice() const { return Notice; }

	/** Goes on in time by seconds; what the mouse is on does not fade. Returns whether it is still there. */
	bool Advance(float Seconds);

private:
	FReply OnClosed();

	StandIn::FNotice Notice;
	float Age = 0.0f;
	bool bClosed = false;
};
}

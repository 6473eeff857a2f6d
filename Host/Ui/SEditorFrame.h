// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Framework/Commands/UICommandList.h"
#include "Host/Editor/Play.h"
#include "Host/Frame/FrameCommands.h"
#include "Host/Frame/FrameContent.h"
#include "Host/Frame/FrameState.h"
#include "Host/Frame/FrameStyle.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include <functional>
#include <map>

class SVerticalBox;

// What the editor's window is made of, from top to bottom: the tab with the level's name, the menu bar, the tool bar, the level
// editor, the area with content browser and output log, the status line. Notices lie over the lower right corner.

namespace TintmillHost
{
class SNoticeList;

/** The window's content. Where the window is small, what is needed least hides first; its menus are tool menus under the editor's names. */
class SEditorFrame : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SEditorFrame) {}
	SLATE_ARGUMENT(FFrameContent, Content)
	SLATE_ARGUMENT(TSharedPtr<SWidget>, LevelEditor)
	SLATE_END_ARGS()

	virtual ~SEditorFrame() override;

	/** Makes the content and registers the menus; Slate and tool menus must be there. One frame at a time. */
	void Construct(const FArguments& InArgs);

	/** What a person has arranged. */
	const FFrameState& GetState() const { return State; }

	/** Arranges the window so; a share outside its limits, and a tab that is not there, are left as they are. Announces nothing. */
	void SetState(const FFrameState& NewState);

	/** Fires when a person has arranged something; a drag fires once, at its end. */
	FSimpleMulticastDelegate& OnStateChanged() { return StateChanged; }

	/** Whether the area below the level editor is seen; it is not in a low window or without open tabs. */
	bool IsBottomShown() const;

	/** Brings a tab of that area to the front, opens it if need be, and gives its panel the keyboard. */
	void ShowPanel(FName Panel);

	/** Opens or closes a tab of that area. */
	void TogglePanel(FName Panel);

	/** Whether a tab of that area is open. */
	bool IsPanelOpen(const FName& Panel) const;

	/** How play starts when the way is not chosen. */
	EPlayWay GetLastPlayWay() const { return LastPlayWay; }

	/** The commands, and what they do here. */
	const FFrameCommands& GetCommands() const { return Commands; }
	const TSharedRef<FUICommandList>& GetCommandList() const { return CommandList; }

	/** Does something that may fail; a failure becomes a notice that begins with what was wanted. */
	void Try(const char* What, const std::function<void()>& Action) const;

	virtual bool SupportsKeyboardFocus() const override { return true; }

private:
	void BindCommands();
	void StartPlay(EPlayWay Way);
	void ActivateNeighbor(int32 Step) const;
	void OpenMapsMenu();
	static void FocusFirst(const TSharedRef<SWidget>& Panel);
	FReply OnUnhandledKey(const FKeyEvent& InKeyEvent);

	TSharedRef<SWidget> MakeTabRow();
	TSharedRef<SWidget> MakeMenuRow();
	TSharedRef<SWidget> MakeToolBar();
	TSharedRef<SWidget> MakeLevelArea(const TSharedRef<SWidget>& LevelEditor);
	TSharedRef<SWidget> MakeBottomArea();
	TSharedRef<SWidget> MakeMiddle(const TSharedRef<SWidget>& LevelEditor);
	TSharedRef<SWidget> MakeStatusLine();
	void AddPanel(const TSharedRef<SVerticalBox>& Column, const FName& Panel, const TSharedRef<SWidget>& Widget);

	EVisibility ShowAbove(float Height) const;
	EVisibility GetBottomVisibility() const;
	float GetLevelShare() const { return 1.0f - State.BottomShare; }
	float GetBottomShare() const { return State.BottomShare; }
	void OnBottomResized(float NewShare);
	void Announce() { StateChanged.Broadcast(); }

	FFrameStyle Style;
	FFrameCommands Commands;
	TSharedRef<FUICommandList> CommandList = MakeShared<FUICommandList>();
	FFrameContent Content;
	FFrameState State;
	FSimpleMulticastDelegate StateChanged;
	EPlayWay LastPlayWay = EPlayWay::InPane;

	/** Content browser and output log by the names of their tabs. */
	std::map<FName, TSharedPtr<SWidget>, FNameFastLess> Panels;
	TSharedPtr<SWidget> MenuBar;
	TSharedPtr<SNoticeList> Notices;
};
}

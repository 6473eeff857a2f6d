// Copyright The Tintmill authors. All rights reserved.

#include "SLevelEditor.h"

#include "LevelEditorViewport.h"
#include "LevelViewportTabContent.h"
#include "SLevelViewport.h"
#include "SLevelViewportPanes.h"
#include "StandIn/LevelEditorPanes.h"

namespace
{
/** Returns the name of a tab, which is part of its panes' keys. */
FString GetTabName(int32 TabNumber)
{
	return FString::Printf(TEXT("Viewport %d"), TabNumber);
}

int32 GetTabNumber(const FLevelViewportTabContent& Tab)
{
	int32 TabNumber = 1;
	while (Tab.GetLayoutString() != GetTabName(TabNumber))
	{
		++TabNumber;
	}
	return TabNumber;
}
}

SLevelEditor::SLevelEditor() {}

SLevelEditor::~SLevelEditor() {}

void SLevelEditor::Construct(const FArguments&)
{
	ChildSlot[SAssignNew(TabWell, SLevelViewportPanes)];
}

TSharedPtr<FLevelViewportTabContent> SLevelEditor::FindTab(int32 TabNumber) const
{
	const FString TabName = GetTabName(TabNumber);
	for (const TSharedPtr<FLevelViewportTabContent>& Tab : ViewportTabs)
	{
		if (Tab->GetLayoutString() == TabName)
		{
			return Tab;
		}
	}
	return TSharedPtr<FLevelViewportTabContent>();
}

TSharedRef<FLevelViewportTabContent> SLevelEditor::OpenTab(int32 TabNumber, const FName& LayoutName)
{
	check(TabNumber >= 1 && TabNumber <= 4);
	TSharedPtr<FLevelViewportTabContent> Tab = FindTab(TabNumber);
	if (!Tab.IsValid())
	{
		Tab = MakeShareable(new FLevelViewportTabContent());
		ViewportTabs.Add(Tab);
		Tab->Initialize(StaticCastSharedRef<SLevelEditor>(AsShared()), GetTabName(TabNumber), LayoutName);
	}
	BringToFront(Tab);
	return Tab.ToSharedRef();
}

void SLevelEditor::CloseTab(int32 TabNumber)
{
	if (TSharedPtr<FLevelViewportTabContent> Tab = FindTab(TabNumber))
	{
		TabWell->ClearContent();
		Tab->Close();
		ViewportTabs.Remove(Tab);
		BringToFront(ViewportTabs.Num() > 0 ? ViewportTabs[0] : TSharedPtr<FLevelViewportTabContent>());
	}
}

void SLevelEditor::CloseAllTabs()
{
	TabWell->ClearContent();
	while (ViewportTabs.Num() > 0)
	{
		TSharedPtr<FLevelViewportTabContent> Tab = ViewportTabs[0];
		Tab->Close();
		ViewportTabs.Remove(Tab);
	}
}

void SLevelEditor::BringToFront(const TSharedPtr<FLevelViewportTabContent>& NewFrontTab)
{
	FrontTab = NewFrontTab;
	for (const TSharedPtr<FLevelViewportTabContent>& Tab : ViewportTabs)
	{
		Tab->SetForeground(Tab == NewFrontTab);
	}
	if (NewFrontTab.IsValid())
	{
		TabWell->SetContent(NewFrontTab->GetContent());
	}
	StandIn::OnPanesArranged().Broadcast();
}

TSharedPtr<FLevelViewportTabContent> SLevelEditor::FindTabOf(const TSharedPtr<SLevelViewport>& Viewport) const
{
	for (const TSharedPtr<FLevelViewportTabContent>& Tab : ViewportTabs)
	{
		if (Viewport.IsValid() && Tab->GetViewports().Contains(Viewport))
		{
			return Tab;
		}
	}
	return TSharedPtr<FLevelViewportTabContent>();
}

TArray<int32> SLevelEditor::GetTabNumbers() const
{
	TArray<int32> Numbers;
	for (const TSharedPtr<FLevelViewportTabContent>& Tab : ViewportTabs)
	{
		Numbers.Add(GetTabNumber(*Tab));
	}
	return Numbers;
}

int32 SLevelEditor::GetFrontTabNumber() const
{
	const TSharedPtr<FLevelViewportTabContent> Tab = FrontTab.Pin();
	return Tab.IsValid() ? GetTabNumber(*Tab) : 0;
}

TArray<TSharedPtr<SLevelViewport>> SLevelEditor::GetViewports() const
{
	TArray<TSharedPtr<SLevelViewport>> Viewports;
	for (const TSharedPtr<FLevelViewportTabContent>& Tab : ViewportTabs)
	{
		Viewports.Append(Tab->GetViewports());
	}
	return Viewports;
}

TSharedPtr<SLevelViewport> SLevelEditor::GetActiveLevelViewport() const
{
	TSharedPtr<SLevelViewport> FirstVisible;
	for (const TSharedPtr<SLevelViewport>& Viewport : GetViewports())
	{
		if (!Viewport.IsValid() || !Viewport->IsVisible())
		{
			continue;
		}
		if (&Viewport->GetLevelViewportClient() == GCurrentLevelEditingViewportClient)
		{
			return Viewport;
		}
		if (!FirstVisible.IsValid())
		{
			FirstVisible = Viewport;
		}
	}
	return FirstVisible;
}

TSharedPtr<IAssetViewport> SLevelEditor::GetActiveViewportInterface()
{
	return GetActiveLevelViewport();
}

// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/LevelEditorPanes.h"

#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "LevelViewportLayout.h"
#include "LevelViewportTabContent.h"
#include "Modules/ModuleManager.h"
#include "SLevelEditor.h"
#include "SLevelViewport.h"

namespace
{
FLevelEditorModule& GetLevelEditorModule()
{
	return FModuleManager::LoadModuleChecked<FLevelEditorModule>("LevelEditor");
}

/** Returns the open level editor; fatal without one. */
TSharedRef<SLevelEditor> GetOpenLevelEditor()
{
	TSharedPtr<SLevelEditor> LevelEditor = GetLevelEditorModule().GetLevelEditorWidget();
	check(LevelEditor.IsValid());
	return LevelEditor.ToSharedRef();
}

/** Returns an open tab; fatal without it. */
TSharedRef<FLevelViewportTabContent> GetOpenTab(int32 TabNumber)
{
	TSharedPtr<FLevelViewportTabContent> Tab = GetOpenLevelEditor()->FindTab(TabNumber);
	check(Tab.IsValid());
	return Tab.ToSharedRef();
}
}

TSharedRef<SWidget> StandIn::OpenLevelEditor(FName LayoutName, FName MaximizedPane)
{
	check(!IsLevelEditorOpen());
	TSharedRef<SLevelEditor> LevelEditor = SNew(SLevelEditor);
	GetLevelEditorModule().SetLevelEditorInstance(LevelEditor);
	TSharedPtr<FLevelViewportLayout> Layout = LevelEditor->OpenTab(1, LayoutName)->GetActiveViewportLayout();
	if (TSharedPtr<SLevelViewport> Pane = Layout->FindViewport(MaximizedPane))
	{
		Layout->RequestMaximizeViewport(Pane->GetConfigKey(), true, false);
	}
	return LevelEditor;
}

void StandIn::CloseLevelEditor()
{
	GetOpenLevelEditor()->CloseAllTabs();
	GetLevelEditorModule().SetLevelEditorInstance(TSharedPtr<SLevelEditor>());
}

bool StandIn::IsLevelEditorOpen()
{
	FLevelEditorModule* Module = FModuleManager::GetModulePtr<FLevelEditorModule>("LevelEditor");
	return Module != nullptr && Module->GetLevelEditorWidget().IsValid();
}

void StandIn::OpenViewportTab(int32 TabNumber, FName LayoutName)
{
	GetOpenLevelEditor()->OpenTab(TabNumber, LayoutName);
}

void StandIn::CloseViewportTab(int32 TabNumber)
{
	GetOpenLevelEditor()->CloseTab(TabNumber);
}

void StandIn::SetViewportLayout(FName LayoutName, int32 TabNumber)
{
	GetOpenTab(TabNumber)->SetViewportConfiguration(LayoutName);
}

FName StandIn::GetViewportLayout(int32 TabNumber)
{
	return GetOpenTab(TabNumber)->GetActiveViewportLayout()->GetLayoutTypeName();
}

TArray<FName> StandIn::GetViewportLayoutNames()
{
	return FLevelViewportLayout::GetLayoutNames();
}

TArray<TSharedPtr<SLevelViewport>> StandIn::GetPanes()
{
	return GetOpenLevelEditor()->GetViewports();
}

TSharedPtr<SLevelViewport> StandIn::FindPane(FName ConfigKey)
{
	for (const TSharedPtr<SLevelViewport>& Pane : GetPanes())
	{
		if (Pane->GetConfigKey() == ConfigKey)
		{
			return Pane;
		}
	}
	return TSharedPtr<SLevelViewport>();
}

bool StandIn::ActivatePane(FName ConfigKey)
{
	TSharedPtr<SLevelViewport> Pane = FindPane(ConfigKey);
	if (Pane.IsValid())
	{
		Pane->GetLevelViewportClient().SetCurrentViewport();
	}
	return Pane.IsValid();
}

bool StandIn::MaximizePane(FName ConfigKey, bool bMaximize)
{
	TSharedPtr<SLevelViewport> Pane = FindPane(ConfigKey);
	if (Pane.IsValid() && Pane->IsMaximized() != bMaximize)
	{
		Pane->OnToggleMaximize();
	}
	return Pane.IsValid();
}

TArray<int32> StandIn::GetViewportTabs()
{
	return GetOpenLevelEditor()->GetTabNumbers();
}

int32 StandIn::GetFrontViewportTab()
{
	return GetOpenLevelEditor()->GetFrontTabNumber();
}

TArray<float> StandIn::GetPaneShares(int32 TabNumber)
{
	return GetOpenTab(TabNumber)->GetActiveViewportLayout()->GetPaneShares();
}

bool StandIn::SetPaneShares(const TArray<float>& Shares, int32 TabNumber)
{
	const bool bSet = GetOpenTab(TabNumber)->GetActiveViewportLayout()->SetPaneShares(Shares);
	if (bSet)
	{
		OnPanesArranged().Broadcast();
	}
	return bSet;
}

TSharedPtr<SLevelViewport> StandIn::GetMaximizedPane(int32 TabNumber)
{
	return GetOpenTab(TabNumber)->GetActiveViewportLayout()->GetMaximizedViewport();
}

FSimpleMulticastDelegate& StandIn::OnPanesArranged()
{
	static FSimpleMulticastDelegate PanesArranged;
	return PanesArranged;
}

// Copyright The Tintmill authors. All rights reserved.

#include "LevelViewportTabContent.h"

#include "Editor.h"
#include "LevelViewportLayout.h"
#include "SLevelEditor.h"
#include "SLevelViewport.h"
#include "SLevelViewportPanes.h"
#include "StandIn/LevelEditorPanes.h"

FLevelViewportTabContent::FLevelViewportTabContent()
	: bForeground(true)
{}

FLevelViewportTabContent::~FLevelViewportTabContent() {}

void FLevelViewportTabContent::Initialize(
	const TSharedPtr<SLevelEditor>& InParentLevelEditor, const FString& InLayoutString, const FName& ConfigurationName)
{
	ParentLevelEditor = InParentLevelEditor;
	LayoutString = InLayoutString;
	Content = SNew(SLevelViewportPanes);
	SetViewportConfiguration(ConfigurationName);
}

void FLevelViewportTabContent::SetViewportConfiguration(const FName& ConfigurationName)
{
	DestroyLayout();
	if (FLevelViewportLayout::GetLayoutNames().Contains(ConfigurationName))
	{
		ActiveLevelViewportLayout = MakeShareable(new FLevelViewportLayout(ConfigurationName));
	}
	check(ActiveLevelViewportLayout.IsValid());
	ActiveLevelViewportLayout->SetForeground(bForeground);
	Content->SetContent(ActiveLevelViewportLayout->BuildViewportLayout(ParentLevelEditor.Pin(), LayoutString));
	StandIn::OnPanesArranged().Broadcast();
}

void FLevelViewportTabContent::DestroyLayout()
{
	if (!ActiveLevelViewportLayout.IsValid())
	{
		return;
	}
	bool bPlayHappensHere = false;
	for (const TSharedPtr<SLevelViewport>& Viewport : ActiveLevelViewportLayout->GetViewports())
	{
		bPlayHappensHere |= Viewport.IsValid() && Viewport->HasPlayInEditorViewport();
	}
	if (bPlayHappensHere)
	{
		GEditor->EndPlayMap();
	}
	Content->ClearContent();
	ActiveLevelViewportLayout->DestroyViewports();
	ActiveLevelViewportLayout.Reset();
}

void FLevelViewportTabContent::Close()
{
	DestroyLayout();
}

bool FLevelViewportTabContent::IsViewportConfigurationSet(const FName& ConfigurationName) const
{
	return ActiveLevelViewportLayout.IsValid() && ActiveLevelViewportLayout->GetLayoutTypeName() == ConfigurationName;
}

TArray<TSharedPtr<SLevelViewport>> FLevelViewportTabContent::GetViewports() const
{
	return ActiveLevelViewportLayout.IsValid() ? ActiveLevelViewportLayout->GetViewports() : TArray<TSharedPtr<SLevelViewport>>();
}

TSharedRef<SWidget> FLevelViewportTabContent::GetContent() const
{
	return Content.ToSharedRef();
}

void FLevelViewportTabContent::SetForeground(bool bInForeground)
{
	bForeground = bInForeground;
	if (ActiveLevelViewportLayout.IsValid())
	{
		ActiveLevelViewportLayout->SetForeground(bInForeground);
	}
}

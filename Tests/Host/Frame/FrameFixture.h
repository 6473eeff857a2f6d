// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Engine/GameViewportClient.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Commands/Labels.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Maps.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/HostLog.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/Person.h"
#include "Host/Ui/SEditorFrame.h"
#include "Host/Ui/Sight.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/LookFiles.h"
#include "StandIn/Notices.h"
#include "StandIn/SlateDriver.h"
#include "Support/EditorFixture.h"
#include "Support/TemporaryProject.h"
#include "TintmillDisplayConfiguration.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/** The whole window on a project with two levels and a look, in an editor with the plug-in; a person uses it. */
class FFrameFixture : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		Project.Write("Content/Looks/Teal.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n");
		Project.Write("Content/Maps/Yard.umap", "");
		Project.Write("Content/Maps/Hall.umap", "");
		StandIn::RegisterMountPoint(TEXT("/Game/"), Project.Path("Content/"));
		DropBindingsOfEarlierModules();
		Options.MaximizedPane = NAME_None;
		Loop.PreInit(Options);
		Loop.Init();
		Loop.InitEditor();
		OpenWindow();
	}

	virtual void TearDown() override
	{
		FSlateApplication::Get().DismissAllMenus();
		CloseWindow();
		Loop.CloseMainFrame();
		Loop.Exit();
		DropBindingsOfEarlierModules();
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		for (const StandIn::FNotice& Notice : TArray<StandIn::FNotice>(StandIn::GetNotices()))
		{
			StandIn::ClearNotice(Notice.Key);
		}
	}

	/** The module leaves bindings in place on purpose, as if the process ended with the engine; here another engine comes after it. */
	static void DropBindingsOfEarlierModules()
	{
		FEditorDelegates::PreBeginPIE.Clear();
		FEditorDelegates::PostPIEStarted.Clear();
		UGameViewportClient::OnViewportCreated().Clear();
	}

	void OpenWindow()
	{
		TintmillHost::FFrameContent Content;
		Content.ProjectName = "Test";
		Content.Log = &Log;
		// clang-format off
		Window = SNew(SWindow)
			.AutoCenter(EAutoCenter::None)
			.CreateTitleBar(false)
			.ClientSize(FVector2D(1000.0f, 700.0f))
			[
				SAssignNew(Frame, TintmillHost::SEditorFrame)
				.Content(Content)
				.LevelEditor(FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstLevelEditor())
			];
		// clang-format on
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		Wait(0.1);
		Frame->OnStateChanged().AddLambda([this]() { ++Announced; });
	}

	void CloseWindow()
	{
		Window->SetContent(SNullWidget::NullWidget);
		Frame.Reset();
		FSlateApplication::Get().DestroyWindowImmediately(Window.ToSharedRef());
		Window.Reset();
	}

	/** Lets the editor run for a time in seconds. */
	void Wait(double Seconds)
	{
		for (int Tick = 0; Tick < std::max(1, static_cast<int>(Seconds * 60.0)); ++Tick)
		{
			Loop.TickFrame(1.0f / 60.0f);
		}
	}

	void Resize(float Width, float Height)
	{
		Window->Resize(FVector2D(Width, Height));
		Wait(0.1);
	}

	bool Sees(const std::string& Label) const
	{
		const std::vector<TintmillHost::FSeen> Things = TintmillHost::LookAround();
		return TintmillHost::FindSeen(Things, Label) != nullptr;
	}

	/** Rests on the labels of a path and clicks the last one: "File > Open Level > Hall". The first one is clicked too if it is in a bar. */
	void Click(const std::string& Path)
	{
		const size_t End = Path.find(" > ");
		if (End != std::string::npos)
		{
			Person.Click(TintmillHost::FollowPath(Person, Path.substr(0, End)).Center);
		}
		const TintmillHost::FSeen Thing = TintmillHost::FollowPath(Person, End == std::string::npos ? Path : Path.substr(End + 3));
		Person.Click(Thing.Center);
		Wait(0.05);
	}

	/** The row of a label in the menus that are open. */
	TintmillHost::FSeen See(const std::string& Label) { return TintmillHost::FollowPath(Person, Label); }

	void Press(const FKey& Key) { Person.Press(FInputChord(Key)); }
	void Press(EModifierKey::Type Modifiers, const FKey& Key) { Person.Press(FInputChord(Modifiers, Key)); }

	static std::string GetActiveKey() { return ToText(TintmillHost::GetActivePane()->GetConfigKey()); }
	static float GetHeight(const TSharedRef<SWidget>& Widget) { return Widget->GetCachedGeometry().GetLocalSize().Y; }

	FTemporaryProject Project;
	TintmillHost::FHostLog Log;
	StandIn::FEngineLoopOptions Options;
	StandIn::FEngineLoop Loop;
	TSharedPtr<SWindow> Window;
	TSharedPtr<TintmillHost::SEditorFrame> Frame;
	TintmillHost::FPerson Person{[this](double Seconds) { Wait(Seconds); }};
	int Announced = 0;
};

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Framework/Application/SlateApplication.h"
#include "Host/Assets/TextureAssets.h"
#include "Host/Commands/Labels.h"
#include "Host/ContentBrowser/SContentBrowser.h"
#include "Host/Program/PathText.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/LookThumbnails.h"
#include "Host/Ui/Person.h"
#include "Host/Ui/Sight.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/LookBuilder.h"
#include "StandIn/LookFiles.h"
#include "StandIn/Notices.h"
#include "Support/EditorFixture.h"
#include "Support/TemporaryProject.h"
#include "TintmillObject.h"
#include "Widgets/SWindow.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

/** Counts the looks on which the builder was to be opened. */
class FCountedBuilder : public StandIn::ILookBuilder
{
public:
	FCountedBuilder()
		: Before(StandIn::SetLookBuilder(this))
	{}
	virtual ~FCountedBuilder() override { StandIn::SetLookBuilder(Before); }

	virtual void Open(const StandIn::FLookBuilderRequest& Request) override { Opened.push_back(ToText(Request.Asset->GetName())); }

	/** The names of the looks in the order of the calls. */
	std::vector<std::string> Opened;

private:
	StandIn::ILookBuilder* Before;
};

/** The content browser in a window of its own, in a whole editor with the plug-in, on a project of the test's; a person uses it. */
class FBrowserFixture : public testing::Test
{
protected:
	/** A look that doubles nothing and halves nothing. */
	static std::string MakeLook() { return "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n"; }

	/** Puts files into the project before the editor starts. */
	virtual void WriteProject()
	{
		for (const char* Name : {"Amber", "Cyan", "Teal"})
		{
			Project.Write(std::string("Content/Looks/") + Name + ".cube", MakeLook());
		}
		Project.Write("Content/Textures/Chart.png", "not read by tests");
		Project.Write("Content/Looks/Film/Silver.cube", MakeLook());
	}

	/** Where the project's assets lie. */
	virtual FString GetContentFolder() const { return Project.Path("Content/"); }

	virtual void SetUp() override
	{
		WriteProject();
		StandIn::RegisterMountPoint(TEXT("/Game/"), GetContentFolder());
		TextureFiles.emplace();
		Options.MaximizedPane = NAME_None;
		Loop.PreInit(Options);
		Loop.Init();
		OtherAssets.emplace();
		Thumbnails.emplace();
		Builder.emplace();
		Loop.InitEditor();
		OpenBrowser();
	}

	virtual void TearDown() override
	{
		Browser.Reset();
		Window->SetContent(SNullWidget::NullWidget);
		FSlateApplication::Get().DestroyWindowImmediately(Window.ToSharedRef());
		Window.Reset();
		Builder.reset();
		Thumbnails.reset();
		OtherAssets.reset();
		Loop.CloseMainFrame();
		Loop.Exit();
		TextureFiles.reset();
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		for (const StandIn::FNotice& Notice : TArray<StandIn::FNotice>(StandIn::GetNotices()))
		{
			StandIn::ClearNotice(Notice.Key);
		}
	}

	void OpenBrowser()
	{
		// clang-format off
		Window = SNew(SWindow)
			.AutoCenter(EAutoCenter::None)
			.ClientSize(FVector2D(900.0f, 420.0f))
			[
				SAssignNew(Browser, TintmillHost::SContentBrowser)
			];
		// clang-format on
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		Wait(0.1);
	}

	/** Lets the editor run for a time in seconds. */
	void Wait(double Seconds)
	{
		for (int Frame = 0; Frame < std::max(1, static_cast<int>(Seconds * 60.0)); ++Frame)
		{
			StandIn::PollLookFiles();
			Loop.TickFrame(1.0f / 60.0f);
		}
	}

	/** What a label names; a failure of the test if it names nothing. */
	TintmillHost::FSeen See(const std::string& Label) const
	{
		const std::vector<TintmillHost::FSeen> Things = TintmillHost::LookAround();
		const TintmillHost::FSeen* const Thing = TintmillHost::FindSeen(Things, Label);
		EXPECT_NE(Thing, nullptr) << "nothing is labeled " << Label << "; there is " << TintmillHost::NameLabels(Things);
		return Thing != nullptr ? *Thing : TintmillHost::FSeen();
	}

	bool Sees(const std::string& Label) const
	{
		const std::vector<TintmillHost::FSeen> Things = TintmillHost::LookAround();
		return TintmillHost::FindSeen(Things, Label) != nullptr;
	}

	/** All texts of the tool tip that shows. */
	std::string ReadToolTip() const
	{
		std::string Text;
		for (const TintmillHost::FSeen& Thing : TintmillHost::LookAround())
		{
			Text += Thing.Kind == TintmillHost::ESeenKind::ToolTip ? (Text.empty() ? "" : "|") + Thing.Label : "";
		}
		return Text;
	}

	void Click(const std::string& Label) { Person.Click(See(Label).Center); }
	void RightClick(const std::string& Label) { Person.Click(See(Label).Center, EKeys::RightMouseButton); }
	void DoubleClick(const std::string& Label) { Person.DoubleClick(See(Label).Center); }
	void Hover(const std::string& Label) { Person.Hover(See(Label).Center); }

	void ClickWith(const FModifierKeysState& Keys, const std::string& Label)
	{
		Person.HoldModifiers(Keys);
		Click(Label);
		Person.HoldModifiers(FModifierKeysState());
	}
	void CtrlClick(const std::string& Label)
	{
		ClickWith(FModifierKeysState(false, false, true, false, false, false, false, false, false), Label);
	}
	void ShiftClick(const std::string& Label)
	{
		ClickWith(FModifierKeysState(true, false, false, false, false, false, false, false, false), Label);
	}

	void Press(const FKey& Key) { Person.Press(FInputChord(Key)); }
	void PressControl(const FKey& Key) { Person.Press(FInputChord(EModifierKey::Control, Key)); }
	void Type(const char* Text) { Person.Type(TintmillHost::FromUtf8(Text)); }

	/** The labels of what is shown, "A|B". */
	std::string ListItems() const { return Join(Browser->GetItems()); }

	/** The labels of what is selected, "A|B". */
	std::string ListSelection() const { return Join(Browser->GetSelection()); }

	void ShowLooks()
	{
		Browser->ShowFolder(TEXT("/Game/Looks"));
		Wait(0.1);
	}

	/** Chooses the new look from the menu of the green button. */
	void BeginNewLook()
	{
		ShowLooks();
		Click("Add New");
		Hover("Miscellaneous");
		Click("Tintmill");
		Wait(0.1);
	}

	/** The texts of all notices. */
	std::string ReadNotices() const
	{
		std::string Text;
		for (const StandIn::FNotice& Notice : StandIn::GetNotices())
		{
			Text += ToText(Notice.Text) + "\n";
		}
		return Text;
	}

	FTemporaryProject Project;
	std::optional<TintmillHost::FTextureFiles> TextureFiles;
	StandIn::FEngineLoopOptions Options;
	StandIn::FEngineLoop Loop;
	std::optional<TintmillHost::FOtherAssets> OtherAssets;
	std::optional<TintmillHost::FLookThumbnails> Thumbnails;
	std::optional<FCountedBuilder> Builder;
	TSharedPtr<SWindow> Window;
	TSharedPtr<TintmillHost::SContentBrowser> Browser;
	TintmillHost::FPerson Person{[this](double Seconds) { Wait(Seconds); }};

private:
	static std::string Join(const TArray<TintmillHost::FContentItemPtr>& Items)
	{
		std::string Text;
		for (const TintmillHost::FContentItemPtr& Item : Items)
		{
			Text += (Text.empty() ? "" : "|") + ToText(Item->Label);
		}
		return Text;
	}
};

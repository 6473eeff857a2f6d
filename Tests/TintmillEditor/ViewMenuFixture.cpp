// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditor/ViewMenuFixture.h"

#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/SlateDriver.h"
#include "StandIn/ViewportToolBarButtons.h"
#include "TintmillDisplayManager.h"
#include "TintmillObject.h"
#include "UObject/UObjectGlobals.h"

FViewMenuFixture::~FViewMenuFixture()
{
	CloseMenus();
	User.reset();
}

void FViewMenuFixture::ShowEditor(FName Layout)
{
	StartEditor(Layout);
	User = std::make_unique<FMenuUser>(false);
	User->Show(FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstLevelEditor().ToSharedRef());
	User->Wait(0.1f);
}

void FViewMenuFixture::Activate(int32 Number)
{
	StandIn::ActivatePane(GetPane(Number)->GetConfigKey());
}

void FViewMenuFixture::OpenViewMenu(int32 Number)
{
	for (const StandIn::FViewportToolBarButton& Button : StandIn::ListViewportToolBarButtons(GetPane(Number).ToSharedRef()))
	{
		if (Button.Label == TEXT("Lit"))
		{
			User->ClickAt(Button.Centre);
			return;
		}
	}
	ADD_FAILURE() << "the toolbar has no View menu";
}

void FViewMenuFixture::OpenPanel(int32 Number)
{
	OpenViewMenu(Number);
	User->Hover(TEXT("Tintmill"));
}

void FViewMenuFixture::OpenPicker(int32 Number)
{
	OpenPanel(Number);
	HoverLookRow();
}

void FViewMenuFixture::HoverLookRow()
{
	User->MoveTo(FindLookRow().Centre);
	// The search box asks for the focus when it has been arranged.
	User->Wait(0.1f);
}

void FViewMenuFixture::CloseMenus()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().DismissAllMenus();
	}
}

StandIn::FMenuRow FViewMenuFixture::FindLookRow() const
{
	for (int32 Level = User->CountMenus() - 1; Level >= 0; --Level)
	{
		const TArray<StandIn::FMenuRow> Rows = User->GetRows(Level);
		for (int32 Index = 1; Index < Rows.Num(); ++Index)
		{
			if (Rows[Index - 1].Label == TEXT("Enable Display"))
			{
				return Rows[Index];
			}
		}
	}
	ADD_FAILURE() << "no panel is open";
	return StandIn::FMenuRow();
}

TSharedRef<SWidget> FViewMenuFixture::GetLastMenu() const
{
	return User->GetMenu(User->CountMenus() - 1).ToSharedRef();
}

StandIn::FAssetPickerState FViewMenuFixture::GetPicker() const
{
	return StandIn::GetAssetPickerState(GetLastMenu());
}

std::string FViewMenuFixture::GetPickerNames() const
{
	std::string Names;
	for (const StandIn::FAssetPickerRow& Row : GetPicker().Rows)
	{
		Names += (Names.empty() ? "" : "|") + ToStd(Row.Label);
	}
	return Names;
}

void FViewMenuFixture::ClickLook(const TCHAR* Name)
{
	StandIn::ScrollAssetPickerTo(GetLastMenu(), Name);
	for (const StandIn::FAssetPickerRow& Row : GetPicker().Rows)
	{
		if (Row.Label == Name)
		{
			User->ClickAt(Row.Centre);
			return;
		}
	}
	ADD_FAILURE() << "the picker does not list " << ToStd(Name);
}

FViewport* FViewMenuFixture::GetViewport(int32 Number)
{
	return GetPane(Number)->GetActiveViewport();
}

UTintmillObject* FViewMenuFixture::LoadLook(const std::string& Name)
{
	const FString Path = FString(UTF8_TO_TCHAR(("/Game/Looks/" + Name + "." + Name).c_str()));
	return LoadObject<UTintmillObject>(nullptr, *Path);
}

void FViewMenuFixture::SetRecord(int32 Number, bool bEnable, float Intensity, UTintmillObject* Look)
{
	FTintmillDisplayConfiguration& Record = GetDisplayManager().FindOrAddDisplayConfiguration(GetClient(Number));
	Record.bEnableDisplay = bEnable;
	Record.Intensity = Intensity;
	Record.LookAsset = Look;
}

std::string FViewMenuFixture::Describe(const FText& Text)
{
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
	const TOptional<FString> Key = FTextInspector::GetKey(Text);
	return (Namespace.IsSet() ? ToStd(Namespace.GetValue()) : "-") + ", " + (Key.IsSet() ? ToStd(Key.GetValue()) : "-") + ", "
		+ ToStd(*FTextInspector::GetSourceString(Text));
}

TSharedPtr<SWidget> FViewMenuFixture::FindWidget(const TSharedRef<SWidget>& Root, const TCHAR* Type)
{
	return StandIn::FindWidgetOfType(Root, Type);
}

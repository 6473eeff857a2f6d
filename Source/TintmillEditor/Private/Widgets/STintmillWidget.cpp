// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/STintmillWidget.h"

#include "TintmillObject.h"

#include "AssetRegistry/AssetData.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "PropertyCustomizationHelpers.h"
#include "Templates/Casts.h"
#include "Textures/SlateIcon.h"
#include "ToolMenu.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuEntry.h"
#include "ToolMenuSection.h"
#include "ToolMenus.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "STintmillWidget"

static const FName TintmillWidgetMenuName(TEXT("TintmillWidget.DisplayConfiguration"));

void STintmillWidget::Construct(const FArguments& InArgs)
{
	Viewport = InArgs._Viewport;
	DisplayConfiguration = InArgs._DisplayConfiguration;
	OnDisplayConfigurationChanged = InArgs._OnDisplayConfigurationChanged;
	check(Viewport);

	UToolMenu* const Menu = FindOrRegisterMenu();
	check(Menu);
	FToolMenuSection& Section = Menu->AddSection(TEXT("DisplayConfiguration"), FText::GetEmpty());
	AddEnableDisplayEntry(Section);
	AddAssetSelectionEntry(Section);

	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.Padding(0.0f)
		.AutoHeight()
		.HAlign(HAlign_Center)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.Padding(0.0f, 0.0f, 4.0f, 0.0f)
			.VAlign(VAlign_Center)
			.AutoWidth()
			[
				UToolMenus::Get()->GenerateWidget(Menu)
			]
		]
	];
	// clang-format on
}

bool STintmillWidget::IsDisplayEnabled() const
{
	return DisplayConfiguration.bEnableDisplay;
}

bool STintmillWidget::CanToggleDisplay() const
{
	return true;
}

void STintmillWidget::ToggleDisplay()
{
	// Every click resets the intensity, whichever way it turns the display.
	DisplayConfiguration.Intensity = 1.0f;
	DisplayConfiguration.bEnableDisplay = !DisplayConfiguration.bEnableDisplay;
	OnDisplayConfigurationChanged.ExecuteIfBound(DisplayConfiguration);
}

FText STintmillWidget::GetAssetSelectionLabel() const
{
	if (!DisplayConfiguration.LookAsset)
	{
		return LOCTEXT("TMLAssetSelection_Label", "Select a TML Asset");
	}
	return FText::FromName(DisplayConfiguration.LookAsset->GetFName());
}

void STintmillWidget::FillAssetPickerMenu(UToolMenu* Menu)
{
	FAssetData CurrentAsset;
	if (DisplayConfiguration.LookAsset)
	{
		CurrentAsset = FAssetData(DisplayConfiguration.LookAsset, false);
	}

	TArray<const UClass*> AllowedClasses;
	AllowedClasses.Add(UTintmillObject::StaticClass());

	// The label shares its key with the entry's label and keeps its own words; both are wanted.
	FToolMenuSection& Section = Menu->AddSection(TEXT("TMLAssetSelection"), LOCTEXT("TMLAssetSelection_Label", "Asset selection"));

	AssetPickerWidget = PropertyCustomizationHelpers::MakeAssetPickerWithMenu(CurrentAsset, DisplayConfiguration.LookAsset != nullptr,
		false, AllowedClasses, TArray<UFactory*>(),
		FOnShouldFilterAsset::CreateLambda([CurrentAsset](const FAssetData& AssetData) { return AssetData == CurrentAsset; }),
		FOnAssetSelected::CreateSP(this, &STintmillWidget::OnAssetSelected), FSimpleDelegate());

	Section.AddEntry(
		FToolMenuEntry::InitWidget(TEXT("TMLAssetPickerWidget"), AssetPickerWidget.ToSharedRef(), FText::GetEmpty(), true, false));
}

void STintmillWidget::OnAssetSelected(const FAssetData& AssetData)
{
	FSlateApplication::Get().DismissMenuByWidget(AssetPickerWidget.ToSharedRef());

	DisplayConfiguration.LookAsset = Cast<UTintmillObject>(AssetData.GetAsset());
	OnDisplayConfigurationChanged.ExecuteIfBound(DisplayConfiguration);
}

UToolMenu* STintmillWidget::FindOrRegisterMenu() const
{
	UToolMenus* const ToolMenus = UToolMenus::Get();
	if (UToolMenu* const Menu = ToolMenus->FindMenu(TintmillWidgetMenuName))
	{
		return Menu;
	}
	return ToolMenus->RegisterMenu(TintmillWidgetMenuName, NAME_None, EMultiBoxType::Menu, true);
}

void STintmillWidget::AddEnableDisplayEntry(FToolMenuSection& Section)
{
	Section.AddMenuEntry(TEXT("EnableDisplay"), LOCTEXT("EnableDisplay_Label", "Enable Display"),
		LOCTEXT("EnableDisplay_ToolTip", "Enable/Disable Tintmill rendering pass."), FSlateIcon(),
		FToolUIActionChoice(FUIAction(FExecuteAction::CreateRaw(this, &STintmillWidget::ToggleDisplay),
			FCanExecuteAction::CreateRaw(this, &STintmillWidget::CanToggleDisplay),
			FIsActionChecked::CreateRaw(this, &STintmillWidget::IsDisplayEnabled), EUIActionRepeatMode::RepeatDisabled)),
		EUserInterfaceActionType::ToggleButton, NAME_None);
}

void STintmillWidget::AddAssetSelectionEntry(FToolMenuSection& Section)
{
	Section.AddEntry(FToolMenuEntry::InitSubMenu(TEXT("TMLAssetSelection"),
		TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateSP(this, &STintmillWidget::GetAssetSelectionLabel)),
		LOCTEXT("TMLAssetSelection_Tooltip", "Select the asset from which the look will be fetched."),
		FNewToolMenuChoice(FNewToolMenuDelegate::CreateRaw(this, &STintmillWidget::FillAssetPickerMenu)), FToolUIActionChoice(FUIAction()),
		EUserInterfaceActionType::None, false, FSlateIcon(), true));
}

#undef LOCTEXT_NAMESPACE

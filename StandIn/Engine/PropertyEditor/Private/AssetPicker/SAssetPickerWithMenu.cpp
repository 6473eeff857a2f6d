// Copyright The Tintmill authors. All rights reserved.

#include "AssetPicker/SAssetPickerWithMenu.h"
#include "AssetPicker/SAssetPickerList.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "Factories/Factory.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "InputCoreTypes.h"
#include "StandIn/AssetFiles.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateIconFinder.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace AssetPickerWithMenuPrivate
{
const float BrowserSize = 300.0f;
}

SAssetPickerWithMenu::SAssetPickerWithMenu()
	: bAllowClear(false)
	, bAllowCopyPaste(false)
	, FocusAttemptsLeft(3)
{}

void SAssetPickerWithMenu::Construct(const FArguments& InArgs)
{
	InitialObject = InArgs._InitialObject;
	bAllowClear = InArgs._AllowClear;
	bAllowCopyPaste = InArgs._AllowCopyPaste;
	AllowedClasses = InArgs._AllowedClasses;
	DisallowedClasses = InArgs._DisallowedClasses;
	OnSet = InArgs._OnSet;
	OnClose = InArgs._OnClose;

	FMenuBuilder MenuBuilder(true, nullptr);
	if (InArgs._NewAssetFactories.Num() > 0)
	{
		MenuBuilder.BeginSection(NAME_None, LOCTEXT("CreateNewAsset", "Create New Asset"));
		for (UFactory* Factory : InArgs._NewAssetFactories)
		{
			MenuBuilder.AddMenuEntry(Factory->GetDisplayName(), Factory->GetToolTip(),
				FSlateIconFinder::FindIconForClass(Factory->GetSupportedClass()),
				FUIAction(FExecuteAction::CreateSP(this, &SAssetPickerWithMenu::OnCreateNew, Factory), FCanExecuteAction()));
		}
		MenuBuilder.EndSection();
	}
	if (InitialObject.IsValid() || bAllowCopyPaste || bAllowClear)
	{
		MenuBuilder.BeginSection(NAME_None, LOCTEXT("CurrentAssetOperationsHeader", "Current Asset"));
		if (InitialObject.IsValid())
		{
			MenuBuilder.AddMenuEntry(LOCTEXT("EditAsset", "Edit"), LOCTEXT("EditAsset_Tooltip", "Edit this asset"), FSlateIcon(),
				FUIAction(FExecuteAction::CreateSP(this, &SAssetPickerWithMenu::OnEdit), FCanExecuteAction()));
		}
		if (bAllowCopyPaste)
		{
			MenuBuilder.AddMenuEntry(LOCTEXT("CopyAsset", "Copy"), LOCTEXT("CopyAsset_Tooltip", "Copies the asset to the clipboard"),
				FSlateIcon(), FUIAction(FExecuteAction::CreateSP(this, &SAssetPickerWithMenu::OnCopy), FCanExecuteAction()));
			MenuBuilder.AddMenuEntry(LOCTEXT("PasteAsset", "Paste"),
				LOCTEXT("PasteAsset_Tooltip", "Pastes an asset from the clipboard to this field"), FSlateIcon(),
				FUIAction(FExecuteAction::CreateSP(this, &SAssetPickerWithMenu::OnPaste),
					FCanExecuteAction::CreateSP(this, &SAssetPickerWithMenu::CanPaste)));
		}
		if (bAllowClear)
		{
			MenuBuilder.AddMenuEntry(LOCTEXT("ClearAsset", "Clear"), LOCTEXT("ClearAsset_ToolTip", "Clears the asset set on this field"),
				FSlateIcon(), FUIAction(FExecuteAction::CreateSP(this, &SAssetPickerWithMenu::OnClear), FCanExecuteAction()));
		}
		MenuBuilder.EndSection();
	}
	MenuBuilder.BeginSection(NAME_None, LOCTEXT("BrowseHeader", "Browse"));
	MenuBuilder.AddWidget(MakeBrowser(), FText::GetEmpty(), true);
	MenuBuilder.EndSection();

	ChildSlot[MenuBuilder.MakeWidget()];
	FillList(InArgs._OnShouldFilterAsset);
}

TSharedRef<SWidget> SAssetPickerWithMenu::MakeBrowser()
{
	const EVisibility NoneVisibility = bAllowClear ? EVisibility::Visible : EVisibility::Collapsed;
	// clang-format off
	return SNew(SBox)
		.WidthOverride(AssetPickerWithMenuPrivate::BrowserSize)
		.HeightOverride(AssetPickerWithMenuPrivate::BrowserSize)
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(FMargin(2.0f))
			[
				SAssignNew(SearchBox, SSearchBox)
				.HintText(LOCTEXT("SearchAssetsHint", "Search Assets"))
				.OnTextChanged(this, &SAssetPickerWithMenu::OnSearchTextChanged)
				.OnTextCommitted(this, &SAssetPickerWithMenu::OnSearchTextCommitted)
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(FMargin(2.0f))
			[
				SNew(SButton)
				.Visibility(NoneVisibility)
				.Text(LOCTEXT("NoneButtonText", "( None )"))
				.OnClicked(this, &SAssetPickerWithMenu::OnNoneClicked)
			]
			+ SVerticalBox::Slot()
			.FillHeight(1.0f)
			[
				SAssignNew(List, SAssetPickerList)
				.OnChosen(this, &SAssetPickerWithMenu::Choose)
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(FMargin(8.0f, 6.0f, 8.0f, 2.0f))
			[
				SNew(STextBlock)
				.Visibility(EVisibility::HitTestInvisible)
				.Text(this, &SAssetPickerWithMenu::GetCountText)
				.Font(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9))
				.ColorAndOpacity(FSlateColor(FLinearColor(0.72f, 0.72f, 0.72f)))
			]
		];
	// clang-format on
}

void SAssetPickerWithMenu::FillList(const FOnShouldFilterAsset& OnShouldFilterAsset)
{
	IAssetRegistry& Registry = FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get();
	// What was put on disk since the last time is to be listed too.
	TArray<FString> Roots;
	for (const StandIn::FMountPoint& MountPoint : StandIn::GetMountPoints())
	{
		Roots.Add(MountPoint.RootPath.LeftChop(1));
	}
	Registry.ScanPathsSynchronous(Roots, true);

	FARFilter Filter;
	for (const UClass* Class : AllowedClasses)
	{
		Filter.ClassNames.Add(Class->GetFName());
	}
	Filter.bRecursiveClasses = true;
	TArray<SAssetPickerList::FItem> Items;
	const auto AddItem = [this, &Items, &OnShouldFilterAsset](const FAssetData& Asset) {
		const bool bHidden = OnShouldFilterAsset.IsBound() && OnShouldFilterAsset.Execute(Asset);
		if (!bHidden && (DisallowedClasses.Num() == 0 || IsAllowed(Asset.GetClass())))
		{
			SAssetPickerList::FItem& Item = Items.AddDefaulted_GetRef();
			Item.Asset = Asset;
			Item.Label = Asset.AssetName.ToString();
		}
		return true;
	};
	if (Filter.ClassNames.Num() > 0)
	{
		Registry.EnumerateAssets(Filter, AddItem);
	}
	else
	{
		TArray<FAssetData> Assets;
		Registry.GetAllAssets(Assets);
		for (const FAssetData& Asset : Assets)
		{
			AddItem(Asset);
		}
	}
	List->SetItems(MoveTemp(Items));
	List->SelectAsset(InitialObject);
}

bool SAssetPickerWithMenu::IsAllowed(const UClass* Class) const
{
	const auto IsAncestor = [Class](const UClass* Ancestor) { return Class && Class->IsChildOf(Ancestor); };
	return (AllowedClasses.Num() == 0 || AllowedClasses.ContainsByPredicate(IsAncestor))
		&& !DisallowedClasses.ContainsByPredicate(IsAncestor);
}

TSharedPtr<SWidget> SAssetPickerWithMenu::GetSearchBox() const
{
	return SearchBox;
}

FText SAssetPickerWithMenu::GetCountText() const
{
	const int32 Num = List->GetNumShown();
	FString Text = FString::FromInt(Num) + (Num == 1 ? TEXT(" item") : TEXT(" items"));
	Text += List->GetSelectedIndex() != INDEX_NONE ? TEXT(" (1 selected)") : TEXT("");
	return FText::FromString(Text);
}

void SAssetPickerWithMenu::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	if (FocusAttemptsLeft > 0)
	{
		--FocusAttemptsLeft;
		if (FSlateApplication::Get().SetKeyboardFocus(SearchBox, EFocusCause::SetDirectly))
		{
			FocusAttemptsLeft = 0;
		}
	}
}

FReply SAssetPickerWithMenu::OnPreviewKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const int32 Page = List->GetNumRowsPerPage();
	const bool bInBrowser = SearchBox->HasFocusedDescendants() || SearchBox->HasKeyboardFocus();
	if (bInBrowser && (Key == EKeys::Down || Key == EKeys::Up || Key == EKeys::PageDown || Key == EKeys::PageUp))
	{
		const int32 Rows = Key == EKeys::Down || Key == EKeys::Up ? 1 : Page;
		List->MoveSelection(Key == EKeys::Down || Key == EKeys::PageDown ? Rows : -Rows);
		return FReply::Handled();
	}
	if (bInBrowser && Key == EKeys::Enter)
	{
		ChooseSelected();
		return FReply::Handled();
	}
	return SCompoundWidget::OnPreviewKeyDown(MyGeometry, InKeyEvent);
}

#undef LOCTEXT_NAMESPACE

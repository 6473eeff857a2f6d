// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/ContentMenus.h"

#include "Host/ContentBrowser/AssetWords.h"
#include "Host/Program/Strings.h"

#include "Factories/Factory.h"
#include "IAssetTypeActions.h"
#include "Misc/PackageName.h"
#include "StandIn/AssetActivation.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/Clipboard.h"
#include "Styling/SlateIconFinder.h"
#include "ToolMenus.h"

#include <map>
#include <vector>

#define LOCTEXT_NAMESPACE "ContentBrowser"

namespace TintmillHost
{
namespace
{
const TCHAR* const NewMenuName = TEXT("ContentBrowser.AddNewContextMenu");
const TCHAR* const ItemMenuName = TEXT("ContentBrowser.AssetContextMenu");

UToolMenu* BeginMenu(const TCHAR* Name)
{
	UToolMenus* const Menus = UToolMenus::Get();
	if (!Menus->IsMenuRegistered(Name))
	{
		Menus->RegisterMenu(Name);
	}
	return Menus->GenerateMenu(Name, FToolMenuContext());
}

/** The factories of one category, those of nested submenus apart. */
struct FFactoryGroup
{
	FString Label;
	std::vector<UFactory*> Factories;
	std::vector<FFactoryGroup> SubGroups;

	FFactoryGroup& FindOrAdd(const FString& SubLabel)
	{
		for (FFactoryGroup& SubGroup : SubGroups)
		{
			if (SubGroup.Label == SubLabel)
			{
				return SubGroup;
			}
		}
		SubGroups.push_back({SubLabel, {}, {}});
		return SubGroups.back();
	}
};

void AddFactory(FToolMenuSection& Section, UFactory* Factory, const FOnFactoryChosen& OnChosen)
{
	Section.AddMenuEntry(Factory->GetClass()->GetFName(), Factory->GetDisplayName(), Factory->GetToolTip(),
		FSlateIconFinder::FindIconForClass(Factory->GetSupportedClass()),
		FUIAction(FExecuteAction::CreateLambda([OnChosen, Factory] { OnChosen.ExecuteIfBound(Factory); })));
}

void AddGroup(FToolMenuSection& Section, const FFactoryGroup& Group, const FOnFactoryChosen& OnChosen)
{
	for (UFactory* const Factory : Group.Factories)
	{
		AddFactory(Section, Factory, OnChosen);
	}
	for (const FFactoryGroup& SubGroup : Group.SubGroups)
	{
		Section.AddSubMenu(FName(*SubGroup.Label), FText::FromString(SubGroup.Label), FText::GetEmpty(),
			FNewToolMenuDelegate::CreateLambda(
				[SubGroup, OnChosen](UToolMenu* Menu) { AddGroup(Menu->AddSection(TEXT("CategorySection")), SubGroup, OnChosen); }));
	}
}

/** The file or folder of an item on disk; empty if it has none. */
FString FindFile(const FContentItem& Item)
{
	if (Item.IsFolder())
	{
		FString Folder;
		FPackageName::TryConvertLongPackageNameToFilename(Item.Path + TEXT("/"), Folder);
		return Folder;
	}
	StandIn::FAssetFile File;
	return StandIn::FindAssetFile(Item.Asset.PackageName.ToString(), File) ? File.FileName : FString();
}

template <typename FunctionType>
FString JoinLines(const TArray<FContentItemPtr>& Items, FunctionType GetLine)
{
	FString Text;
	for (const FContentItemPtr& Item : Items)
	{
		const FString Line = GetLine(*Item);
		Text += Line.IsEmpty() ? FString() : (Text.IsEmpty() ? FString() : FString(TEXT("\n"))) + Line;
	}
	return Text;
}

/** Lets the type of the assets, if they are all of one, add what it can do with them. */
void AddTypeActions(UToolMenu* Menu, const TArray<FContentItemPtr>& Assets)
{
	TSharedPtr<IAssetTypeActions> Actions;
	TArray<UObject*> Objects;
	for (const FContentItemPtr& Asset : Assets)
	{
		const TSharedPtr<IAssetTypeActions> Own = FindTypeActions(GetItemClass(*Asset));
		UObject* const Object = Own.IsValid() ? Asset->Asset.GetAsset() : nullptr;
		if (Object == nullptr || (Actions.IsValid() && Actions != Own))
		{
			return;
		}
		Actions = Own;
		Objects.Add(Object);
	}
	if (Actions.IsValid() && Actions->HasActions(Objects))
	{
		Actions->GetActions(Objects,
			Menu->AddSection(
				TEXT("GetAssetActions"), FText::Format(LOCTEXT("AssetSpecificOptionsMenuHeading", "{0} Actions"), Actions->GetName())));
	}
}
}

TSharedRef<SWidget> MakeNewAssetMenu(const FOnFactoryChosen& OnChosen)
{
	FFactoryGroup Groups;
	for (const StandIn::FNewAssetMenuEntry& Entry : StandIn::ListNewAssetMenu())
	{
		FFactoryGroup* Group = Entry.Category.IsEmpty() ? &Groups : &Groups.FindOrAdd(Entry.Category);
		for (const FText& SubMenu : Entry.Factory->GetMenuCategorySubMenus())
		{
			Group = Entry.Category.IsEmpty() ? Group : &Group->FindOrAdd(SubMenu.ToString());
		}
		Group->Factories.push_back(Entry.Factory);
	}

	UToolMenu* const Menu = BeginMenu(NewMenuName);
	FFactoryGroup Basic;
	Basic.Factories.swap(Groups.Factories);
	if (!Basic.Factories.empty())
	{
		AddGroup(Menu->AddSection(TEXT("ContentBrowserNewBasicAsset"), LOCTEXT("CreateBasicAssetsMenuHeading", "Create Basic Asset")),
			Basic, OnChosen);
	}
	AddGroup(Menu->AddSection(TEXT("ContentBrowserNewAdvancedAsset"), LOCTEXT("CreateAdvancedAssetsMenuHeading", "Create Advanced Asset")),
		Groups, OnChosen);
	return UToolMenus::Get()->GenerateWidget(Menu);
}

TSharedRef<SWidget> MakeItemMenu(const TArray<FContentItemPtr>& Items, const FSimpleDelegate& OnOpen)
{
	TArray<FContentItemPtr> Assets;
	for (const FContentItemPtr& Item : Items)
	{
		if (!Item->IsFolder())
		{
			Assets.Add(Item);
		}
	}
	UToolMenu* const Menu = BeginMenu(ItemMenuName);
	const FUIAction Open(FExecuteAction::CreateLambda([OnOpen] { OnOpen.ExecuteIfBound(); }));
	if (Assets.Num() > 0)
	{
		AddTypeActions(Menu, Assets);
		FToolMenuSection& Common = Menu->AddSection(TEXT("CommonAssetActions"), LOCTEXT("CommonAssetActionsMenuHeading", "Common"));
		Common.AddMenuEntry(TEXT("EditAsset"), LOCTEXT("EditAsset", "Edit..."),
			LOCTEXT("EditAssetTooltip", "Opens the selected asset(s) for edit."), FSlateIcon(), Open);
	}
	else
	{
		FToolMenuSection& Common = Menu->AddSection(TEXT("PathViewFolderOptions"), LOCTEXT("PathViewOptionsMenuHeading", "Folder Options"));
		Common.AddMenuEntry(TEXT("OpenFolder"), LOCTEXT("OpenFolder", "Open"), LOCTEXT("OpenFolderTooltip", "Shows what is in the folder."),
			FSlateIcon(), Open);
	}

	FToolMenuSection& References = Menu->AddSection(TEXT("AssetContextReferences"), LOCTEXT("ReferencesMenuHeading", "References"));
	if (Assets.Num() > 0)
	{
		References.AddMenuEntry(TEXT("CopyReference"), LOCTEXT("CopyReference", "Copy Reference"),
			LOCTEXT("CopyReferenceTooltip", "Copies reference paths for the selected assets to the clipboard."), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda([Assets] { CopyReferences(Assets); })));
	}
	References.AddMenuEntry(TEXT("CopyFilePath"), LOCTEXT("CopyFilePath", "Copy File Path"),
		LOCTEXT("CopyFilePathTooltip", "Copies the file paths on disk for the selected assets to the clipboard."), FSlateIcon(),
		FUIAction(FExecuteAction::CreateLambda([Items] { StandIn::SetClipboardText(JoinLines(Items, &FindFile)); })));
	return UToolMenus::Get()->GenerateWidget(Menu);
}

void CopyReferences(const TArray<FContentItemPtr>& Items)
{
	StandIn::SetClipboardText(
		JoinLines(Items, [](const FContentItem& Item) { return Item.IsFolder() ? FString() : Item.Asset.GetExportTextName(); }));
}
}

#undef LOCTEXT_NAMESPACE

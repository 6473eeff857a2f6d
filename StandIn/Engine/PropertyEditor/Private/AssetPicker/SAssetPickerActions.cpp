// Copyright The Tintmill authors. All rights reserved.

#include "AssetPicker/SAssetPickerWithMenu.h"
#include "AssetPicker/SAssetPickerList.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/FatalHandler.h"
#include "StandIn/Notices.h"
#include "Widgets/Input/SSearchBox.h"

namespace AssetPickerActionsPrivate
{
/** Text that was copied last, as "Class'Path'". */
FString& Clipboard()
{
	static FString Text;
	return Text;
}

/** Tells the person when the file of a choice went after it was listed: whoever asks for the asset will get none. */
void TellIfGone(const FAssetData& Asset)
{
	const FString Key = TEXT("AssetPicker.Gone");
	StandIn::ClearNotice(Key);
	const FString PackageName = Asset.PackageName.ToString();
	StandIn::FAssetFile File;
	if (Asset.IsValid() && !Asset.IsAssetLoaded() && !StandIn::FindAssetFile(PackageName, File))
	{
		StandIn::AddNotice(Key,
			FString::Printf(TEXT("%s was chosen, but its file is gone since the list was made, so nothing is chosen now. Choose another "
								 "asset or put the file back."),
				*PackageName));
	}
}

FAssetData FindCopiedAsset()
{
	FString Path = Clipboard();
	FString Rest;
	if (Path.Split(TEXT("'"), nullptr, &Rest))
	{
		Rest.Split(TEXT("'"), &Path, nullptr);
	}
	if (Path.IsEmpty())
	{
		return FAssetData();
	}
	return FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get().GetAssetByObjectPath(FName(*Path));
}
}

void SAssetPickerWithMenu::Choose(const FAssetData& Asset)
{
	const TSharedRef<SWidget> KeptAlive = AsShared();
	const FOnAssetSelected Set = OnSet;
	const FSimpleDelegate Close = OnClose;
	const FAssetData Chosen = Asset;
	AssetPickerActionsPrivate::TellIfGone(Chosen);
	Set.ExecuteIfBound(Chosen);
	Close.ExecuteIfBound();
}

void SAssetPickerWithMenu::ChooseSelected()
{
	if (List->GetSelectedIndex() == INDEX_NONE)
	{
		List->MoveSelection(1);
	}
	if (List->GetSelectedIndex() != INDEX_NONE)
	{
		Choose(List->GetSelectedAsset());
	}
}

FReply SAssetPickerWithMenu::OnNoneClicked()
{
	OnClear();
	return FReply::Handled();
}

void SAssetPickerWithMenu::OnEdit()
{
	const TSharedRef<SWidget> KeptAlive = AsShared();
	if (UObject* Asset = InitialObject.GetAsset())
	{
		FAssetToolsModule::GetModule().Get().OpenEditorForAssets(TArray<UObject*>({Asset}));
	}
	OnClose.ExecuteIfBound();
}

void SAssetPickerWithMenu::OnCopy()
{
	AssetPickerActionsPrivate::Clipboard() = InitialObject.IsValid() ? InitialObject.GetExportTextName() : FString();
	OnClose.ExecuteIfBound();
}

bool SAssetPickerWithMenu::CanPaste() const
{
	const FAssetData Copied = AssetPickerActionsPrivate::FindCopiedAsset();
	return Copied.IsValid() && IsAllowed(Copied.GetClass());
}

void SAssetPickerWithMenu::OnPaste()
{
	Choose(AssetPickerActionsPrivate::FindCopiedAsset());
}

void SAssetPickerWithMenu::OnClear()
{
	Choose(FAssetData());
}

void SAssetPickerWithMenu::OnCreateNew(UFactory*)
{
	STANDIN_MISSING(TEXT("IAssetTools::CreateAssetWithDialog"));
}

void SAssetPickerWithMenu::OnSearchTextChanged(const FText& InText)
{
	List->SetSearchText(InText.ToString());
}

void SAssetPickerWithMenu::OnSearchTextCommitted(const FText& InText, ETextCommit::Type CommitType)
{
	if (CommitType == ETextCommit::OnEnter)
	{
		List->SetSearchText(InText.ToString());
		ChooseSelected();
	}
}

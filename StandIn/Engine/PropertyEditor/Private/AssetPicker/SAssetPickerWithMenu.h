// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "PropertyCustomizationHelpers.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SAssetPickerList;
class SSearchBox;

/** Asset picker with its menu: new assets, what can be done with the current one, and the list with its search box. */
class SAssetPickerWithMenu : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SAssetPickerWithMenu)
		: _AllowClear(false)
		, _AllowCopyPaste(true)
	{}
	SLATE_ARGUMENT(FAssetData, InitialObject)
	SLATE_ARGUMENT(bool, AllowClear)
	SLATE_ARGUMENT(bool, AllowCopyPaste)
	SLATE_ARGUMENT(TArray<const UClass*>, AllowedClasses)
	SLATE_ARGUMENT(TArray<const UClass*>, DisallowedClasses)
	SLATE_ARGUMENT(TArray<UFactory*>, NewAssetFactories)
	SLATE_EVENT(FOnShouldFilterAsset, OnShouldFilterAsset)
	SLATE_EVENT(FOnAssetSelected, OnSet)
	SLATE_EVENT(FSimpleDelegate, OnClose)
	SLATE_END_ARGS()

	SAssetPickerWithMenu();

	void Construct(const FArguments& InArgs);

	/** The list. */
	TSharedPtr<SAssetPickerList> GetList() const { return List; }

	/** The search box. */
	TSharedPtr<SWidget> GetSearchBox() const;

	/** Text at the bottom: how many assets are listed. */
	FText GetCountText() const;

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual FReply OnPreviewKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	TSharedRef<SWidget> MakeBrowser();
	void FillList(const FOnShouldFilterAsset& OnShouldFilterAsset);
	bool IsAllowed(const UClass* Class) const;
	void Choose(const FAssetData& Asset);
	void ChooseSelected();
	FReply OnNoneClicked();
	void OnEdit();
	void OnCopy();
	bool CanPaste() const;
	void OnPaste();
	void OnClear();
	void OnCreateNew(UFactory* Factory);
	void OnSearchTextChanged(const FText& InText);
	void OnSearchTextCommitted(const FText& InText, ETextCommit::Type CommitType);

	FAssetData InitialObject;
	bool bAllowClear;
	bool bAllowCopyPaste;
	TArray<const UClass*> AllowedClasses;
	TArray<const UClass*> DisallowedClasses;
	FOnAssetSelected OnSet;
	FSimpleDelegate OnClose;
	TSharedPtr<SAssetPickerList> List;
	TSharedPtr<SSearchBox> SearchBox;
	int32 FocusAttemptsLeft;
};

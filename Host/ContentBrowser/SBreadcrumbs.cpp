// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SBreadcrumbs.h"

#include "Host/ContentBrowser/ContentStyle.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"

namespace TintmillHost
{
void SBreadcrumbs::Construct(const FArguments& InArgs)
{
	OnFolderPicked = InArgs._OnFolderPicked;
	ChildSlot[SAssignNew(Row, SHorizontalBox)];
}

void SBreadcrumbs::ShowFolder(const FString& Path)
{
	TArray<FString> Way;
	for (FString Folder = Path;; Folder = FContentModel::GetParent(Folder))
	{
		Way.Insert(Folder, 0);
		if (Folder == FContentModel::GetRoot())
		{
			break;
		}
	}
	Row->ClearChildren();
	for (int32 Index = 0; Index < Way.Num(); ++Index)
	{
		if (Index > 0)
		{
			Row->AddSlot().AutoWidth().VAlign(VAlign_Center)[SNew(SImage).Image(ContentStyle::GetArrowBrush(false))];
		}
		// clang-format off
		Row->AddSlot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(SButton)
			.ButtonStyle(&FCoreStyle::Get(), "HoverHintOnly")
			.Text(FText::FromString(FContentModel::GetFolderLabel(Way[Index])))
			.OnClicked(this, &SBreadcrumbs::OnClicked, Way[Index])
		];
		// clang-format on
	}
}

FReply SBreadcrumbs::OnClicked(FString Path)
{
	OnFolderPicked.ExecuteIfBound(Path);
	return FReply::Handled();
}
}

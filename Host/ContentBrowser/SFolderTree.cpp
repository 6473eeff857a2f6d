// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SFolderTree.h"

#include "Host/Program/Strings.h"

#include "InputCoreTypes.h"

namespace TintmillHost
{
void SFolderTree::Construct(const FArguments& InArgs)
{
	Model = InArgs._Model;
	OnFolderPicked = InArgs._OnFolderPicked;
	Current = FContentModel::GetRoot();
	// clang-format off
	ChildSlot
	[
		SAssignNew(List, SListView<FFolderRowPtr>)
		.ListItemsSource(&Rows)
		.SelectionMode(ESelectionMode::Single)
		.OnGenerateRow(this, &SFolderTree::MakeRow)
		.OnSelectionChanged(this, &SFolderTree::OnRowPicked)
		.OnMouseButtonDoubleClick(this, &SFolderTree::OnRowDoubleClicked)
		.OnKeyDownHandler(this, &SFolderTree::OnListKeyDown)
	];
	// clang-format on
	Refresh();
	ToggleFolder(FContentModel::GetRoot());
}

void SFolderTree::Refresh()
{
	Rows.Empty();
	AddRows(FContentModel::GetRoot(), 0);
	List->RequestListRefresh();
	const auto Found = Known.find(ToUtf8(Current.ToLower()));
	if (Found != Known.end() && Rows.Contains(Found->second) && !List->IsItemSelected(Found->second))
	{
		List->SetSelection(Found->second);
	}
}

void SFolderTree::ShowFolder(const FString& Path)
{
	Current = Path;
	for (FString Above = Path; !(Above == FContentModel::GetRoot());)
	{
		Above = FContentModel::GetParent(Above);
		const auto Found = Known.find(ToUtf8(Above.ToLower()));
		if (Found == Known.end())
		{
			FFolderRowPtr& Row = Known[ToUtf8(Above.ToLower())];
			Row = MakeShared<FFolderRow>();
			Row->bExpanded = true;
		}
		else
		{
			Found->second->bExpanded = true;
		}
	}
	Refresh();
	const auto Found = Known.find(ToUtf8(Path.ToLower()));
	if (Found != Known.end())
	{
		List->RequestScrollIntoView(Found->second);
	}
}

void SFolderTree::ToggleFolder(const FString& Path)
{
	const auto Found = Known.find(ToUtf8(Path.ToLower()));
	if (Found != Known.end())
	{
		Found->second->bExpanded = !Found->second->bExpanded;
		Refresh();
	}
}

TSharedPtr<SFolderRow> SFolderTree::FindRow(const FString& Path) const
{
	const auto Found = Known.find(ToUtf8(Path.ToLower()));
	const TSharedPtr<ITableRow> Row = Found == Known.end() ? TSharedPtr<ITableRow>() : List->WidgetFromItem(Found->second);
	return Row.IsValid() ? StaticCastSharedRef<SFolderRow>(Row->AsWidget()) : TSharedPtr<SFolderRow>();
}

void SFolderTree::AddRows(const FString& Path, int32 Depth)
{
	FFolderRowPtr& Row = Known[ToUtf8(Path.ToLower())];
	if (!Row.IsValid())
	{
		Row = MakeShared<FFolderRow>();
	}
	Row->Path = Path;
	Row->Label = FContentModel::GetFolderLabel(Path);
	Row->Depth = Depth;
	const std::vector<FContentItemPtr> Folders = Model->GetFolders(Path);
	Row->bHasFolders = !Folders.empty();
	Rows.Add(Row);
	if (Row->bExpanded)
	{
		for (const FContentItemPtr& Folder : Folders)
		{
			AddRows(Folder->Path, Depth + 1);
		}
	}
}

TSharedRef<ITableRow> SFolderTree::MakeRow(FFolderRowPtr Row, const TSharedRef<STableViewBase>& Owner)
{
	return SNew(SFolderRow, Owner).Row(Row).OnToggled(this, &SFolderTree::ToggleFolder);
}

void SFolderTree::OnRowPicked(FFolderRowPtr Row, ESelectInfo::Type How)
{
	if (Row.IsValid() && How != ESelectInfo::Direct)
	{
		Current = Row->Path;
		OnFolderPicked.ExecuteIfBound(Row->Path);
	}
}

void SFolderTree::OnRowDoubleClicked(FFolderRowPtr Row)
{
	ToggleFolder(Row->Path);
}

FReply SFolderTree::OnListKeyDown(const FGeometry&, const FKeyEvent& Event)
{
	const auto Found = Known.find(ToUtf8(Current.ToLower()));
	const bool bLeft = Event.GetKey() == EKeys::Left;
	if (Found == Known.end() || (!bLeft && Event.GetKey() != EKeys::Right))
	{
		return FReply::Unhandled();
	}
	const FFolderRowPtr Row = Found->second;
	if (Row->bHasFolders && Row->bExpanded == bLeft)
	{
		ToggleFolder(Row->Path);
	}
	else if (bLeft)
	{
		const FString Parent = FContentModel::GetParent(Row->Path);
		ShowFolder(Parent);
		OnFolderPicked.ExecuteIfBound(Parent);
	}
	return FReply::Handled();
}
}

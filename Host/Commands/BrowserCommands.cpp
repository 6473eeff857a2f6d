// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/BrowserCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/WindowCommands.h"
#include "Host/Commands/Words.h"
#include "Host/ContentBrowser/SContentBrowser.h"
#include "Host/ContentBrowser/SFolderTree.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"

namespace TintmillHost
{
namespace
{
/** The content browser below a widget, if it is in sight. */
TSharedPtr<SContentBrowser> FindBelow(const TSharedRef<SWidget>& Widget)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return nullptr;
	}
	if (Widget->GetType() == TEXT("SContentBrowser"))
	{
		return StaticCastSharedRef<SContentBrowser>(Widget);
	}
	FChildren* const Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		if (const TSharedPtr<SContentBrowser> Found = FindBelow(Children->GetChildAt(Index)))
		{
			return Found;
		}
	}
	return nullptr;
}

TSharedRef<SContentBrowser> FindBrowser()
{
	TArray<TSharedRef<SWindow>> Windows;
	FSlateApplication::Get().GetAllVisibleWindowsOrdered(Windows);
	for (const TSharedRef<SWindow>& Window : Windows)
	{
		if (const TSharedPtr<SContentBrowser> Found = FindBelow(Window->GetContent()))
		{
			return Found.ToSharedRef();
		}
	}
	throw FCommandError("The content browser is not in sight: click its tab, or make the window larger.");
}

/** The row of a folder in the tree; those above it are expanded by clicks on their arrows. */
TSharedRef<SFolderRow> RevealFolder(FPerson& Person, const TSharedRef<SContentBrowser>& Browser, const std::string& Folder)
{
	const FString Path = FromUtf8(Folder);
	TArray<FString> Above;
	for (FString Parent = FContentModel::GetParent(Path); !(Parent == FContentModel::GetRoot()); Parent = FContentModel::GetParent(Parent))
	{
		Above.Insert(Parent, 0);
	}
	Above.Insert(FContentModel::GetRoot(), 0);
	for (const FString& Parent : Above)
	{
		const TSharedPtr<SFolderRow> Row = Browser->FindFolderRow(Parent);
		if (Row.IsValid() && !Row->GetRow()->bExpanded)
		{
			Person.Click(Row->GetArrowCenter());
		}
	}
	const TSharedPtr<SFolderRow> Row = Browser->FindFolderRow(Path);
	if (!Row.IsValid())
	{
		throw FCommandError("There is no folder '" + Folder + "' in sight in the content browser; folders are named like /Game/Looks.");
	}
	return Row.ToSharedRef();
}

void PrintItems(std::ostream& Output)
{
	const TSharedRef<SContentBrowser> Browser = FindBrowser();
	Output << "  " << ToUtf8(Browser->GetFolder()) << '\n';
	for (const FTilePlace& Place : Browser->GetPlaces())
	{
		Output << "  " << (Place.bSelected ? "* " : "  ") << ToUtf8(Place.Item->Label) << (Place.Item->IsFolder() ? "/" : "") << '\n';
	}
}

FSeen FindTile(const std::string& Label)
{
	const FSeen Thing = FindOrComplain(LookAround(), Label);
	if (Thing.Kind != ESeenKind::Tile)
	{
		throw FCommandError("'" + Label + "' is no tile of the content browser.");
	}
	return Thing;
}

void Expect(bool bHolds, const std::string& Label, const std::string& State)
{
	if (!bHolds)
	{
		throw FCommandError("The tile '" + Label + "' was expected to be " + State + ", and it is not.");
	}
}
}

void AddBrowserCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "The content browser");
	const FWindowCommands Commands(Console, Program);
	FPerson& Person = Program.GetPerson();
	Commands.Add("click-folder FOLDER", "click a folder in the content browser's tree, which shows it", {"click-folder /Game/Looks"},
		[&Person](const FArguments& Words, std::ostream&) {
			const TSharedRef<SFolderRow> Row = RevealFolder(Person, FindBrowser(), Words[0]);
			Person.Click(Row->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f)));
		});
	Commands.Add("toggle-folder FOLDER", "click the arrow of a folder in the content browser's tree", {"toggle-folder /Game"},
		[&Person](
			const FArguments& Words, std::ostream&) { Person.Click(RevealFolder(Person, FindBrowser(), Words[0])->GetArrowCenter()); });
	Commands.Add("click-beside-tiles [left|right]",
		"click the content browser where no tile is; the right button opens the menu of new assets", {"click-beside-tiles right"},
		[&Person](const FArguments& Words, std::ostream&) {
			const bool bRight = !Words.empty() && Words[0] == "right";
			Person.Click(FindBrowser()->GetEmptyPlace(), bRight ? EKeys::RightMouseButton : EKeys::LeftMouseButton);
		});
	Commands.Add("tiles", "list what the content browser shows, with a star before what is selected", {"tiles"},
		[](const FArguments&, std::ostream& Output) { PrintItems(Output); });
	Commands.Add("expect-selected LABEL...", "end the run unless a tile is selected", {"expect-selected WarmPrint"},
		[](const FArguments& Words, std::ostream&) {
			const std::string Label = JoinWords(Words);
			Expect(FindTile(Label).bChecked, Label, "selected");
		});
	Commands.Add("expect-marked LABEL...", "end the run unless a tile bears the mark of what cannot be used", {"expect-marked Broken"},
		[](const FArguments& Words, std::ostream&) {
			const std::string Label = JoinWords(Words);
			Expect(FindTile(Label).bMarked, Label, "marked");
		});
}
}

// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/Sight.h"

#include "Host/ContentBrowser/AssetWords.h"
#include "Host/ContentBrowser/SContentBrowser.h"
#include "Host/OutputLog/SLogLines.h"
#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"
#include "StandIn/AssetPickerRows.h"
#include "StandIn/MenuRows.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace TintmillHost
{
namespace
{
/** A list larger than this is cut off in complaints. */
constexpr size_t MaxNamedLabels = 60;

FVector2D CenterOf(const SWidget& Widget)
{
	return Widget.GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
}

/** The name of a widget's class, whatever namespace it was named with. */
FName GetShortType(const SWidget& Widget)
{
	const FString Type = Widget.GetType().ToString();
	int32 Colon = INDEX_NONE;
	return Type.FindLastChar(TEXT(':'), Colon) ? FName(*Type.RightChop(Colon + 1)) : Widget.GetType();
}

bool IsButton(const FName& Type)
{
	static const FName Types[] = {"SButton", "SComboButton", "SMenuBarHead", "STabHead", "SEditorViewportToolbarMenu",
		"SEditorViewportViewMenu", "SLevelEditorViewportViewMenu"};
	return std::find(std::begin(Types), std::end(Types), Type) != std::end(Types);
}

/** Walks a tree of widgets and notes what has a label. */
class FLook
{
public:
	explicit FLook(std::vector<FSeen>& InThings)
		: Things(InThings)
	{}

	void Walk(const TSharedRef<SWidget>& Widget, bool bEnabled, bool bInButton)
	{
		if (!Widget->GetVisibility().IsVisible())
		{
			return;
		}
		const FName Type = GetShortType(*Widget);
		const bool bNowEnabled = bEnabled && Widget->IsEnabled();
		if (Type == "SMenuEntryRow")
		{
			NoteMenuRow(Widget);
		}
		else if (Type == "SMenuHeading")
		{
			for (const FString& Heading : StandIn::ListMenuHeadings(Widget))
			{
				Note(ESeenKind::Heading, Heading, *Widget, bNowEnabled);
			}
			return;
		}
		else if (Type == "SContentBrowser")
		{
			NoteTiles(StaticCastSharedRef<SContentBrowser>(Widget));
		}
		else if (Type == "SAssetPickerList")
		{
			NoteAssets(Widget);
		}
		else if (Type == "STextBlock")
		{
			const FString Text = StaticCastSharedRef<STextBlock>(Widget)->GetText().ToString();
			Note(bInButton ? ESeenKind::Button : ESeenKind::Text, Text, *Widget, bNowEnabled);
		}
		else if (Type == "SEditableText")
		{
			NoteTextBox(Widget, bNowEnabled);
		}
		else if (Type == "SSplitter")
		{
			NoteHandles(Widget);
		}
		else if (Type == "SLogLines")
		{
			NoteLogLines(Widget, bNowEnabled);
		}
		else if (IsButton(Type) && Widget->GetTag() != NAME_None)
		{
			// One that shows a picture is known by its name.
			Note(ESeenKind::Button, Widget->GetTag().ToString(), *Widget, bNowEnabled);
		}
		if (Type == "SToolBarRow")
		{
			// Buttons without room are in a menu.
			FArrangedChildren Arranged(EVisibility::Visible);
			Widget->ArrangeChildren(Widget->GetCachedGeometry(), Arranged);
			for (int32 Index = 0; Index < Arranged.Num(); ++Index)
			{
				Walk(Arranged[Index].Widget, bNowEnabled, bInButton);
			}
			return;
		}
		// The texts of a menu row are the row's label already.
		FChildren* const Children = Widget->GetChildren();
		for (int32 Index = 0; Type != "SMenuEntryRow" && Index < Children->Num(); ++Index)
		{
			Walk(Children->GetChildAt(Index), bNowEnabled, bInButton || IsButton(Type));
		}
	}

private:
	FSeen& Note(ESeenKind Kind, const FString& Label, const SWidget& Widget, bool bEnabled)
	{
		FSeen Thing;
		Thing.Kind = Kind;
		Thing.Label = ToUtf8(Label);
		Thing.Center = CenterOf(Widget);
		Thing.bEnabled = bEnabled;
		Thing.bFocused = Widget.HasKeyboardFocus();
		if (Thing.Label.empty())
		{
			return Nameless = Thing;
		}
		return Things.emplace_back(std::move(Thing));
	}

	void NoteMenuRow(const TSharedRef<SWidget>& Widget)
	{
		for (const StandIn::FMenuRow& Row : StandIn::ListMenuRows(Widget))
		{
			FSeen& Thing = Note(ESeenKind::MenuRow, Row.Label, *Row.Widget, Row.bEnabled);
			Thing.Center = Row.Centre;
			Thing.bHasCheck = Row.bHasCheck;
			Thing.bChecked = Row.CheckState == ECheckBoxState::Checked;
			Thing.CheckCenter = Row.CheckCentre;
		}
	}

	void NoteAssets(const TSharedRef<SWidget>& List)
	{
		// The picker is found from above its list.
		TSharedPtr<SWidget> Picker = List;
		while (Picker.IsValid() && Picker->GetType() != "SAssetPickerWithMenu")
		{
			Picker = Picker->GetParentWidget();
		}
		if (!Picker.IsValid())
		{
			return;
		}
		const StandIn::FAssetPickerState State = StandIn::GetAssetPickerState(Picker.ToSharedRef());
		const FVector2D ListCenter = State.ListTopLeft + State.ListSize * 0.5f;
		for (const StandIn::FAssetPickerRow& Row : State.Rows)
		{
			FSeen& Thing = Note(ESeenKind::AssetRow, Row.Label, *List, true);
			Thing.Center = Row.Centre;
			Thing.bChecked = Row.bSelected;
			Thing.ListCenter = ListCenter;
			if (!Row.bVisible && State.Rows.Num() > 1)
			{
				const float RowHeight = State.Rows[1].Centre.Y - State.Rows[0].Centre.Y;
				Thing.ScrollRows = static_cast<int>(std::lround((Row.Centre.Y - ListCenter.Y) / RowHeight));
			}
		}
	}

	void NoteTiles(const TSharedRef<SContentBrowser>& Browser)
	{
		for (const FTilePlace& Place : Browser->GetPlaces())
		{
			FSeen& Thing = Note(ESeenKind::Tile, Place.Item->Label, *Browser, true);
			Thing.Center = Place.Center;
			Thing.bChecked = Place.bSelected;
			Thing.bMarked = Place.bInSight && !GetAssetProblem(*Place.Item).IsEmpty();
			Thing.ScrollRows = -Place.Notches;
			Thing.ListCenter = Browser->GetTilesCenter();
		}
	}

	void NoteTextBox(const TSharedRef<SWidget>& Widget, bool bEnabled)
	{
		const TSharedRef<SEditableText> Box = StaticCastSharedRef<SEditableText>(Widget);
		const FText Text = Box->GetText();
		Note(ESeenKind::TextBox, (Text.IsEmpty() ? Box->GetHintText() : Text).ToString(), *Widget, bEnabled);
		if (!Text.IsEmpty())
		{
			// A person still knows the box by what it said when it was empty.
			Note(ESeenKind::TextBox, Box->GetHintText().ToString(), *Widget, bEnabled);
		}
	}

	void NoteLogLines(const TSharedRef<SWidget>& Widget, bool bEnabled)
	{
		for (const FSeenLogLine& Line : StaticCastSharedRef<SLogLines>(Widget)->ListSeen())
		{
			Note(ESeenKind::Text, FromUtf8(Line.Text), *Widget, bEnabled).Center = Line.Place;
		}
	}

	/** The gaps between neighbors that are in sight. */
	void NoteHandles(const TSharedRef<SWidget>& Splitter)
	{
		FChildren* const Children = Splitter->GetChildren();
		const SWidget* Before = nullptr;
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			const TSharedRef<SWidget> Child = Children->GetChildAt(Index);
			if (!Child->GetVisibility().IsVisible())
			{
				continue;
			}
			if (Before != nullptr)
			{
				const FVector2D End = Before->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(1.0f, 1.0f));
				const FVector2D Start = Child->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.0f, 0.0f));
				FSeen& Thing = Note(ESeenKind::Splitter, FromUtf8("splitter " + std::to_string(++SplitterCount)), *Splitter, true);
				Thing.Center = (End.X <= Start.X) ? FVector2D((End.X + Start.X) / 2.0f, CenterOf(*Splitter).Y)
												  : FVector2D(CenterOf(*Splitter).X, (End.Y + Start.Y) / 2.0f);
			}
			Before = &Child.Get();
		}
	}

	std::vector<FSeen>& Things;
	FSeen Nameless;
	int SplitterCount = 0;
};

template <typename PredicateType>
const FSeen* FindFirst(const std::vector<FSeen>& Things, PredicateType Matches)
{
	for (const FSeen& Thing : Things)
	{
		if (Matches(Thing))
		{
			return &Thing;
		}
	}
	return nullptr;
}
}

std::vector<FSeen> LookAround()
{
	TArray<TSharedRef<SWindow>> Windows;
	FSlateApplication::Get().GetAllVisibleWindowsOrdered(Windows);
	std::vector<FSeen> Things;
	for (int32 Index = Windows.Num() - 1; Index >= 0; --Index)
	{
		std::vector<FSeen> InWindow = LookAt(Windows[Index]->GetContent());
		if (Windows[Index]->GetType() == EWindowType::ToolTip)
		{
			for (FSeen& Thing : InWindow)
			{
				Thing.Kind = ESeenKind::ToolTip;
			}
		}
		std::stable_sort(InWindow.begin(), InWindow.end(), [](const FSeen& A, const FSeen& B) { return A.Center.Y < B.Center.Y; });
		Things.insert(Things.end(), InWindow.begin(), InWindow.end());
	}
	return Things;
}

std::vector<FSeen> LookAt(const TSharedRef<SWidget>& Widget)
{
	std::vector<FSeen> Things;
	FLook(Things).Walk(Widget, true, false);
	return Things;
}

const FSeen* FindSeen(const std::vector<FSeen>& Things, const std::string& Label)
{
	const std::string LoweredLabel = ToLowerCase(Label);
	for (const bool bAnyCase : {false, true})
	{
		for (const ESeenKind Kind : {ESeenKind::MenuRow, ESeenKind::AssetRow, ESeenKind::Tile, ESeenKind::Button, ESeenKind::TextBox,
				 ESeenKind::Text, ESeenKind::Heading, ESeenKind::ToolTip, ESeenKind::Splitter})
		{
			const FSeen* const Thing = FindFirst(Things, [&](const FSeen& Candidate) {
				return Candidate.Kind == Kind && (bAnyCase ? ToLowerCase(Candidate.Label) == LoweredLabel : Candidate.Label == Label);
			});
			if (Thing != nullptr)
			{
				return Thing;
			}
		}
	}
	return nullptr;
}

std::string NameLabels(const std::vector<FSeen>& Things)
{
	std::string Names;
	std::set<std::string> Named;
	for (const FSeen& Thing : Things)
	{
		if (Named.size() >= MaxNamedLabels)
		{
			return Names + " and more";
		}
		if (Named.insert(Thing.Label).second)
		{
			Names += (Names.empty() ? "'" : ", '") + Thing.Label + "'";
		}
	}
	return Names.empty() ? "nothing" : Names;
}
}

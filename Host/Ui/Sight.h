// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include <string>
#include <vector>

class SWidget;

// What a person sees on the screen and can name: labels of rows, buttons, boxes and texts, with the place to point at.

namespace TintmillHost
{
/** Kinds of things with a label; where one label names several, the first kind is meant. */
enum class ESeenKind
{
	MenuRow,
	AssetRow,
	/** A tile of the content browser. */
	Tile,
	Button,
	TextBox,
	Text,
	Heading,
	ToolTip,
	/** The handle between two places of a splitter: "splitter 1" and so on, outer ones first. */
	Splitter
};

/** Something on the screen with a label. Places are in pixels of the desktop. */
struct FSeen
{
	ESeenKind Kind = ESeenKind::Text;
	std::string Label;

	/** Where to point at it. */
	FVector2D Center = FVector2D(0.0f, 0.0f);

	/** Of rows with a check mark: whether it is set, and where the mark is. Of tiles: whether it is selected. */
	bool bHasCheck = false;
	bool bChecked = false;
	FVector2D CheckCenter = FVector2D(0.0f, 0.0f);

	/** Whether it can be used. */
	bool bEnabled = true;

	/** Whether the keyboard's input goes to it. */
	bool bFocused = false;

	/** Of tiles: whether it bears the mark of what cannot be used. */
	bool bMarked = false;

	/** Of asset rows and tiles: whether the list has to be scrolled first, how far in rows, and where its middle is. */
	int ScrollRows = 0;
	FVector2D ListCenter = FVector2D(0.0f, 0.0f);
};

/** Everything with a label in the windows, menus and tool tips, the topmost window first, each from top to bottom. */
std::vector<FSeen> LookAround();

/** The same below one widget. */
std::vector<FSeen> LookAt(const TSharedRef<SWidget>& Widget);

/** What a label means in a list of LookAround: the exact spelling first, then any case; the topmost window, then the first kind. Null if nothing. */
const FSeen* FindSeen(const std::vector<FSeen>& Things, const std::string& Label);

/** The labels in a list, each once, for a complaint: "'Lit', 'Unlit', …". */
std::string NameLabels(const std::vector<FSeen>& Things);
}

// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/UiExpectations.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillObject.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace TintmillHost
{
namespace
{
void Require(bool bHolds, const std::string& Sentence)
{
	if (!bHolds)
	{
		throw FCommandError(Sentence);
	}
}

void CheckAbsent(const std::string& Label)
{
	const std::vector<FSeen> Things = LookAround();
	const bool bThere = std::any_of(Things.begin(), Things.end(), [&Label](const FSeen& Thing) { return Thing.Label == Label; });
	Require(!bThere, "'" + Label + "' was expected not to be in sight, and it is.");
}

void CheckMark(const std::string& Label, bool bExpected)
{
	const FSeen Thing = FindOrComplain(LookAround(), Label);
	Require(Thing.bHasCheck, "'" + Label + "' has no check mark.");
	Require(Thing.bChecked == bExpected,
		"'" + Label + "' was expected to be " + (bExpected ? "checked" : "unchecked") + ", and it is " + (bExpected ? "not." : "checked."));
}

void CheckUsable(const std::string& Label, bool bExpected)
{
	Require(FindOrComplain(LookAround(), Label).bEnabled == bExpected,
		"'" + Label + "' was expected to be " + (bExpected ? "enabled, and it is grayed out." : "grayed out, and it is enabled."));
}

void CheckToolTip(const std::string& Text)
{
	std::string Shown;
	for (const FSeen& Thing : LookAround())
	{
		Shown += Thing.Kind == ESeenKind::ToolTip ? (Shown.empty() ? "" : " ") + Thing.Label : "";
	}
	Require(Shown == Text,
		"The tool tip was expected to read '" + Text + "', and " + (Shown.empty() ? "there is none." : "it reads '" + Shown + "'."));
}

void CheckActive(const std::string& Word)
{
	const FName Active = GetActivePane()->GetConfigKey();
	Require(FindPane(Word)->GetConfigKey() == Active,
		"Pane " + Word + " was expected to be active, and it is " + ToUtf8(Active.ToString()) + ".");
}

void CheckMenus(const std::string& Value)
{
	const int Open = FSlateApplication::Get().GetMenuStack().GetNumStackLevels();
	Require(Open == ParseNumber(Value, 0.0, 100.0, "a number of menus"),
		Value + " menus were expected to be open, and there are " + std::to_string(Open) + ".");
}

std::string DescribeField(const FTintmillDisplayConfiguration& Record, const std::string& Field)
{
	if (Field == "enable")
	{
		return Record.bEnableDisplay ? "on" : "off";
	}
	if (Field == "look")
	{
		return Record.LookAsset ? ToUtf8(Record.LookAsset->GetName()) : "none";
	}
	if (Field == "intensity")
	{
		char Text[32];
		const auto [End, Error] = std::to_chars(std::begin(Text), std::end(Text), Record.Intensity);
		return std::string(Text, End);
	}
	throw FCommandError("There is no field '" + Field + "'; there are enable, intensity, look.");
}

void CheckField(const std::string& PaneAndField, const std::string& Value)
{
	const size_t Dot = PaneAndField.rfind('.');
	const std::string Pane = PaneAndField.substr(0, Dot);
	const std::string Field = PaneAndField.substr(Dot + 1);
	const std::string Actual = DescribeField(GetPaneRecord(*FindPane(Pane)), Field);
	Require(Actual == Value, "The field " + Field + " of pane " + Pane + " was expected to be " + Value + ", and it is " + Actual + ".");
}
}

void CheckExpectation(const std::string& What, const std::string& Value)
{
	if (What == "visible")
	{
		FindOrComplain(LookAround(), Value);
	}
	else if (What == "absent")
	{
		CheckAbsent(Value);
	}
	else if (What == "checked" || What == "unchecked")
	{
		CheckMark(Value, What == "checked");
	}
	else if (What == "enabled" || What == "disabled")
	{
		CheckUsable(Value, What == "enabled");
	}
	else if (What == "focused")
	{
		Require(
			FindOrComplain(LookAround(), Value).bFocused, "The keyboard's input was expected to go to '" + Value + "', and it does not.");
	}
	else if (What == "tooltip")
	{
		CheckToolTip(Value);
	}
	else if (What == "active")
	{
		CheckActive(Value);
	}
	else if (What == "menus")
	{
		CheckMenus(Value);
	}
	else if (What.find('.') != std::string::npos)
	{
		CheckField(What, Value);
	}
	else
	{
		throw FCommandError("Nothing can be expected of '" + What
			+ "'; there are visible, absent, checked, unchecked, enabled, disabled, focused, tooltip, active, menus, and PANE.FIELD.");
	}
}
}

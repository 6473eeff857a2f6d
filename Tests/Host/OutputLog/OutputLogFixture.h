// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/OutputLog/SLogLines.h"
#include "Host/OutputLog/SOutputLog.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/Sight.h"

#include "Misc/OutputDeviceRedirector.h"
#include "Slate/SlateFixture.h"
#include "StandIn/Clipboard.h"
#include "Widgets/Input/SEditableText.h"

#include <optional>

/** An output log that fills a window; the engine's log goes to it. */
class FOutputLogFixture : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		Log.emplace();
		StandIn::SetClipboardText(TEXT("before"));
	}

	void TearDown() override
	{
		Panel.Reset();
		FSlateFixture::TearDown();
		Log.reset();
	}

	/** Opens the panel. Entered lines are noted; commands are as given. */
	void Open(const std::vector<TintmillHost::FConsoleHint>& Commands = {})
	{
		TintmillHost::FConsoleLink Link;
		Link.Run = [this](const std::string& Line) { Notes.push_back(Line); };
		Link.ListCommands = [Commands] { return Commands; };
		Show(SAssignNew(Panel, TintmillHost::SOutputLog).Log(&*Log).Console(Link));
		Wait();
	}

	/** Lets a few frames go by. */
	static void Wait() { StandIn::AdvanceTime(0.1f); }

	static void Write(const std::string& Text, ELogVerbosity::Type Verbosity = ELogVerbosity::Log, const TCHAR* Category = TEXT("LogMill"))
	{
		GLog->Log(FName(Category), Verbosity, TintmillHost::FromUtf8(Text));
	}

	/** Logs lines "LogMill: 0" and so on. */
	static void WriteLines(int Count)
	{
		for (int Index = 0; Index < Count; ++Index)
		{
			Write(std::to_string(Index));
		}
	}

	/** The lines in sight. */
	FNotes SeenLines() const
	{
		FNotes Texts;
		for (const TintmillHost::FSeenLogLine& Line : Lines().ListSeen())
		{
			Texts.push_back(Line.Text);
		}
		return Texts;
	}

	/** Clicks what a label names. */
	static void ClickLabel(const std::string& Label, const FKey& Button = EKeys::LeftMouseButton)
	{
		const std::vector<TintmillHost::FSeen> Things = TintmillHost::LookAround();
		const TintmillHost::FSeen* const Thing = TintmillHost::FindSeen(Things, Label);
		ASSERT_NE(Thing, nullptr) << Label << " among " << TintmillHost::NameLabels(Things);
		StandIn::ClickAt(Thing->Center, Button);
		Wait();
	}

	/** Rests on what a label names until its submenu has come. */
	static void HoverLabel(const std::string& Label)
	{
		const std::vector<TintmillHost::FSeen> Things = TintmillHost::LookAround();
		const TintmillHost::FSeen* const Thing = TintmillHost::FindSeen(Things, Label);
		ASSERT_NE(Thing, nullptr) << Label << " among " << TintmillHost::NameLabels(Things);
		StandIn::MoveMouse(Thing->Center);
		StandIn::AdvanceTime(1.0f);
	}

	/** Where a column of a line in sight is, by its place from the top. */
	FVector2D PlaceOf(int SeenLine, int Column) const
	{
		return Lines().ListSeen()[static_cast<size_t>(SeenLine)].Place + FVector2D(6.0f * static_cast<float>(Column), 0.0f);
	}

	/** Presses on a place and releases on another. */
	void Drag(const FVector2D& From, const FVector2D& To)
	{
		StandIn::MoveMouse(From);
		StandIn::PressMouse();
		StandIn::MoveMouse(To);
		StandIn::ReleaseMouse();
		Wait();
	}

	TintmillHost::SLogLines& Lines() const { return *Panel->GetLines(); }

	std::string Clipboard() const { return TintmillHost::ToUtf8(StandIn::GetClipboardText()); }

	std::optional<TintmillHost::FHostLog> Log;
	TSharedPtr<TintmillHost::SOutputLog> Panel;
};

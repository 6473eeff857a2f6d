// Copyright The Tintmill authors. All rights reserved.

// Before the engine's headers, whose macro check it would fall over.
#include <rapidcheck.h>

#include "TintmillEditor/ModuleFixture.h"

#include "Editor.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/PlaySession.h"
#include "Support/Text.h"
#include "TintmillDisplayManager.h"
#include "TintmillObject.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <algorithm>

// Random days of work with panes against a model of a page: what a pane shows is kept under its key, in the order in which the
// keys were met. RapidCheck prints the seed of a failing day; RC_PARAMS="reproduce=…" plays it again.

namespace
{
struct FModelRecord
{
	bool bEnable = false;
	int IntensityInEighths = 8;
	int Look = 0;

	bool operator==(const FModelRecord&) const = default;
};

const char* const Looks[] = {"", "Teal", "Amber"};
const char* const Layouts[] = {"OnePane", "TwoPanesVert", "ThreePanesLeft", "FourPanes2x2"};
const int PaneCounts[] = {1, 2, 3, 4};

enum class EStep
{
	ChangeLayout,
	ChangeRecord,
	ReportListChange,
	Restart
};

/** One thing that a user or the editor does; every number is taken modulo what there is. */
struct FStep
{
	EStep Kind;
	int Place;
	FModelRecord Record;
};

std::ostream& operator<<(std::ostream& Output, const FStep& Step)
{
	const char* const Names[] = {"layout", "record", "list change", "restart"};
	return Output << Names[static_cast<int>(Step.Kind)] << ' ' << Step.Place << " (" << Step.Record.bEnable << ' '
				  << Step.Record.IntensityInEighths << "/8 " << Looks[Step.Record.Look] << ")";
}

rc::Gen<FStep> AnyStep()
{
	return rc::gen::map(rc::gen::tuple(rc::gen::weightedElement<EStep>({{3, EStep::ChangeLayout}, {6, EStep::ChangeRecord},
										   {1, EStep::ReportListChange}, {1, EStep::Restart}}),
							rc::gen::inRange(0, 12), rc::gen::arbitrary<bool>(), rc::gen::inRange(0, 9), rc::gen::inRange(0, 3)),
		[](const std::tuple<EStep, int, bool, int, int>& Values) {
			return FStep{
				std::get<0>(Values), std::get<1>(Values), FModelRecord{std::get<2>(Values), std::get<3>(Values), std::get<4>(Values)}};
		});
}

/** What ought to be. */
class FModel
{
public:
	void ChangeLayout(int InLayout)
	{
		ClosePanes();
		Layout = InLayout;
		OpenPanes();
	}

	void ClosePanes()
	{
		for (size_t Pane = 0; Pane < Panes.size(); ++Pane)
		{
			Find(GetKey(static_cast<int>(Pane)))->second = Panes[Pane];
		}
		Panes.clear();
	}

	void OpenPanes()
	{
		for (int Pane = 0; Pane < PaneCounts[Layout]; ++Pane)
		{
			if (!Find(GetKey(Pane)))
			{
				Saved.push_back({GetKey(Pane), FModelRecord()});
			}
			Panes.push_back(Find(GetKey(Pane))->second);
		}
	}

	std::string GetKey(int Pane) const { return std::string(Layouts[Layout]) + ".Viewport 1.Viewport" + std::to_string(Pane); }

	int Layout = 0;
	std::vector<FModelRecord> Panes;
	std::vector<std::pair<std::string, FModelRecord>> Saved;

private:
	std::pair<std::string, FModelRecord>* Find(const std::string& Key)
	{
		const auto Found = std::find_if(Saved.begin(), Saved.end(), [&Key](const auto& Pair) { return Pair.first == Key; });
		return Found == Saved.end() ? nullptr : &*Found;
	}
};

/** The same day in the editor. */
class FDay : public FModuleFixture
{
public:
	FDay()
	{
		WriteLook("Teal");
		WriteLook("Amber");
		Open(0);
	}

	void Do(const FStep& Step)
	{
		switch (Step.Kind)
		{
		case EStep::ChangeLayout:
			Model.ChangeLayout(Step.Place % 4);
			StandIn::SetViewportLayout(FName(Layouts[Model.Layout]));
			StandIn::BroadcastLevelViewportClientListChanged();
			break;
		case EStep::ChangeRecord:
		{
			const int Pane = Step.Place % static_cast<int>(Model.Panes.size());
			Model.Panes[Pane] = Step.Record;
			Write(GetDisplayManager().FindOrAddDisplayConfiguration(GetClient(Pane)), Step.Record);
			break;
		}
		case EStep::ReportListChange:
			StandIn::BroadcastLevelViewportClientListChanged();
			break;
		case EStep::Restart:
			Model.ClosePanes();
			ExitEditor();
			Open(Model.Layout);
			break;
		}
	}

	/** What the panes show, and what ought to be shown. */
	void Compare()
	{
		for (size_t Pane = 0; Pane < Model.Panes.size(); ++Pane)
		{
			RC_ASSERT(Describe(FindRecord(static_cast<int>(Pane))) == Describe(Model.Panes[Pane]));
		}
	}

	/** What the file holds once the editor is closed. */
	void CompareFile()
	{
		Model.ClosePanes();
		ExitEditor();
		std::vector<std::string> Expected;
		for (const auto& [Key, Record] : Model.Saved)
		{
			Expected.push_back(MakePair(Key, Record.bEnable, std::to_string(Record.IntensityInEighths / 8.0), Looks[Record.Look]));
		}
		RC_ASSERT(ReadSettings() == Expected);
	}

private:
	virtual void TestBody() override {}

	void Open(int Layout)
	{
		Model.Layout = Layout;
		Model.OpenPanes();
		StartEditor(FName(Layouts[Layout]));
		StandIn::BroadcastLevelViewportClientListChanged();
	}

	static void Write(FTintmillDisplayConfiguration& Target, const FModelRecord& Record)
	{
		const std::string Name = Looks[Record.Look];
		const std::string Path = "/Game/Looks/" + Name + "." + Name;
		Target.bEnableDisplay = Record.bEnable;
		Target.Intensity = static_cast<float>(Record.IntensityInEighths) / 8.0f;
		Target.LookAsset = Name.empty() ? nullptr : LoadObject<UTintmillObject>(nullptr, UTF8_TO_TCHAR(Path.c_str()));
	}

	static std::string Describe(const FTintmillDisplayConfiguration* Record)
	{
		return Record ? std::to_string(Record->bEnableDisplay) + std::to_string(Record->Intensity) + LookName(Record) : "none";
	}

	static std::string Describe(const FModelRecord& Record)
	{
		return std::to_string(Record.bEnable) + std::to_string(static_cast<float>(Record.IntensityInEighths) / 8.0f) + Looks[Record.Look];
	}

	FModel Model;
};

TEST(TrackingModel, AnyDayOfWorkEndsWithWhatThePanesShowedInTheOrderInWhichTheyWereMet)
{
	const bool bHolds = (rc::check)("panes keep what they show", [] {
		// Days of up to forty steps: every step may save, and a save waits for the disk.
		const std::vector<FStep> Steps = *rc::gen::scale(0.4, rc::gen::container<std::vector<FStep>>(AnyStep()));
		FDay Day;
		for (const FStep& Step : Steps)
		{
			Day.Do(Step);
			Day.Compare();
		}
		Day.CompareFile();
	});
	EXPECT_TRUE(bHolds);
}
}

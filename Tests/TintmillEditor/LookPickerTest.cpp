// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/STintmillWidget.h"

#include "Support/FileTime.h"
#include "TintmillEditor/ViewMenuFixture.h"

#include "PropertyCustomizationHelpers.h"
#include "Rendering/DrawElements.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/FontMeasurer.h"
#include "StandIn/Notices.h"
#include "StandIn/SlateDriver.h"
#include "TintmillDisplayManager.h"
#include "TintmillEditorSettings.h"
#include "TintmillObject.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <chrono>
#include <iostream>

// The picker behind the panel's second row: what it lists, what a pick does, and in which order.

namespace
{
const FName PanelMenu(TEXT("TintmillWidget.DisplayConfiguration"));
const FName PickerEntry(TEXT("TMLAssetSelection"));

class FLookPicker : public FViewMenuFixture
{
protected:
	virtual void SetUp() override
	{
		WriteLook("Amber");
		WriteLook("Teal");
		WriteLook("Zinc");
		ShowEditor(TEXT("OnePane"));
	}

	virtual void TearDown() override { StandIn::UnregisterAssetFileType(TEXT("other")); }

	/** Pops a panel up that notes every change, and how many menus were open then. */
	TSharedRef<STintmillWidget> OpenWatchedPanel(UTintmillObject* Look = nullptr, bool bEnable = true, float Intensity = 0.5f)
	{
		FTintmillDisplayConfiguration Record;
		Record.bEnableDisplay = bEnable;
		Record.Intensity = Intensity;
		Record.LookAsset = Look;
		// clang-format off
		const TSharedRef<STintmillWidget> Widget = SNew(STintmillWidget)
			.Viewport(GetViewport(0))
			.DisplayConfiguration(Record)
			.OnDisplayConfigurationChanged_Lambda([this](const FTintmillDisplayConfiguration& New) {
				Changes.push_back(New);
				MenusAtChange = User->CountMenus();
			});
		// clang-format on
		User->Open(Widget);
		return Widget;
	}

	/** Pops such a panel up, then its picker. */
	TSharedRef<STintmillWidget> OpenWatchedPicker(UTintmillObject* Look = nullptr, bool bEnable = true, float Intensity = 0.5f)
	{
		const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel(Look, bEnable, Intensity);
		HoverLookRow();
		return Widget;
	}

	/** What an opening of the newest panel's picker makes, without showing it. */
	static UToolMenu* GeneratePickerMenu()
	{
		return UToolMenus::Get()->GenerateSubMenu(UToolMenus::Get()->FindMenu(PanelMenu), PickerEntry);
	}

	static FToolMenuEntry GetPickerEntry(const UToolMenu* Menu) { return Menu->Sections[0].Blocks[0]; }

	/** The rows of the last opened menu, separated by "|". */
	std::string GetRowLabels() const { return ToStd(User->GetLabels(User->CountMenus() - 1)); }

	/** Clicks "( None )" in the list. */
	void ClickNone() { StandIn::Click(StandIn::FindText(GetLastMenu(), TEXT("( None )")).ToSharedRef()); }

	/** Deletes a look's file. */
	void Delete(const std::string& Name) const { std::filesystem::remove(Project.NativePath("Content/Looks/" + Name + ".cube")); }

	/** Puts an object that is no look where a look of the project would be in memory. */
	static void PutForeignObject(const TCHAR* Name)
	{
		UPackage* const Package = CreatePackage(*(FString(TEXT("/Game/Looks/")) + Name));
		NewObject<UTintmillLevelViewportSettings>(Package, Name, RF_Public | RF_Standalone);
	}

	std::vector<FTintmillDisplayConfiguration> Changes;
	int32 MenusAtChange = -1;
};

// What an opening makes.

TEST_F(FLookPicker, TheSubMenuHasOneSection)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	const UToolMenu* const Menu = GeneratePickerMenu();
	ASSERT_EQ(Menu->Sections.Num(), 1);
	EXPECT_EQ(Menu->Sections[0].Name, FName(TEXT("TMLAssetSelection")));
}

TEST_F(FLookPicker, TheSectionsLabelSharesTheKeyOfTheRowAndKeepsItsOwnWords)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	EXPECT_EQ(Describe(GeneratePickerMenu()->Sections[0].Label.Get()), "STintmillWidget, TMLAssetSelection_Label, Asset selection");
	EXPECT_EQ(Describe(UToolMenus::Get()->FindMenu(PanelMenu)->FindEntry(PickerEntry)->Label.Get()),
		"STintmillWidget, TMLAssetSelection_Label, Select a TML Asset");
}

TEST_F(FLookPicker, TheSectionHasNoPlaceOfItsOwn)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	EXPECT_EQ(GeneratePickerMenu()->Sections[0].InsertPosition, FToolMenuInsert());
}

TEST_F(FLookPicker, TheSectionHoldsThePickersEntryAlone)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	const UToolMenu* const Menu = GeneratePickerMenu();
	ASSERT_EQ(Menu->Sections[0].Blocks.Num(), 1);
	EXPECT_EQ(Menu->Sections[0].Blocks[0].Name, FName(TEXT("TMLAssetPickerWidget")));
}

TEST_F(FLookPicker, TheEntryIsAWidgetWithTheEmptyLabel)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	const FToolMenuEntry Entry = GetPickerEntry(GeneratePickerMenu());
	EXPECT_EQ(Entry.Type, EMultiBlockType::Widget);
	EXPECT_TRUE(Entry.Label.Get().IdenticalTo(FText::GetEmpty()));
}

TEST_F(FLookPicker, TheEntryIsNeitherIndentedNorSearched)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	const FToolMenuEntry Entry = GetPickerEntry(GeneratePickerMenu());
	EXPECT_TRUE(Entry.WidgetData.bNoIndent && !Entry.WidgetData.bSearchable);
}

TEST_F(FLookPicker, EveryOpeningMakesAPicker)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	const TSharedRef<SWidget> First = GetPickerEntry(GeneratePickerMenu()).MakeWidget.Execute(FToolMenuContext());
	const TSharedRef<SWidget> Second = GetPickerEntry(GeneratePickerMenu()).MakeWidget.Execute(FToolMenuContext());
	EXPECT_NE(First, Second);
}

TEST_F(FLookPicker, BothTextsOfTheSharedKeyShow)
{
	OpenPicker();
	EXPECT_EQ(ToStd(FindLookRow().Label), "Select a TML Asset");
	EXPECT_TRUE(User->GetHeadings(2).StartsWith(TEXT("Asset selection")));
}

TEST_F(FLookPicker, OpensOnHover)
{
	OpenPicker();
	EXPECT_EQ(User->CountMenus(), 3);
}

// What it lists and offers.

TEST_F(FLookPicker, WithoutALookItListsEveryLook)
{
	OpenPicker();
	EXPECT_EQ(GetPickerNames(), "Amber|Teal|Zinc");
}

TEST_F(FLookPicker, WithALookItListsAllOthers)
{
	SetRecord(0, false, 1.0f, LoadLook("Teal"));
	OpenPicker();
	EXPECT_EQ(GetPickerNames(), "Amber|Zinc");
}

TEST_F(FLookPicker, ALookOfTheSameNameInAnotherFolderIsListed)
{
	Project.Write("Content/Other/Teal.cube", Project.Read("Content/Looks/Teal.cube"));
	SetRecord(0, false, 1.0f, LoadLook("Teal"));
	OpenPicker();
	EXPECT_EQ(GetPickerNames(), "Amber|Teal|Zinc");
}

TEST_F(FLookPicker, ListsNothingButLooks)
{
	StandIn::FAssetFileType Other;
	Other.Extension = TEXT("other");
	Other.ClassName = TEXT("TintmillLevelViewportSettings");
	StandIn::RegisterAssetFileType(Other);
	Project.Write("Content/Looks/Stone.other", "x");
	OpenPicker();
	EXPECT_EQ(GetPickerNames(), "Amber|Teal|Zinc");
}

TEST_F(FLookPicker, ListsWhatIsOnDiskAtEachOpening)
{
	OpenPicker();
	CloseMenus();
	WriteLook("Brass");
	Delete("Zinc");
	OpenPicker();
	EXPECT_EQ(GetPickerNames(), "Amber|Brass|Teal");
}

TEST_F(FLookPicker, ListsARenamedLookUnderItsNewName)
{
	OpenPicker();
	CloseMenus();
	std::filesystem::rename(Project.NativePath("Content/Looks/Zinc.cube"), Project.NativePath("Content/Looks/Iron.cube"));
	OpenPicker();
	EXPECT_EQ(GetPickerNames(), "Amber|Iron|Teal");
}

TEST_F(FLookPicker, WithoutALookItOffersNoRowsAboveTheList)
{
	OpenPicker();
	EXPECT_EQ(GetRowLabels(), "");
}

TEST_F(FLookPicker, WithALookItOffersClearButNeitherCopyNorPaste)
{
	SetRecord(0, false, 1.0f, LoadLook("Teal"));
	OpenPicker();
	EXPECT_EQ(GetRowLabels(), "Edit|Clear");
}

TEST_F(FLookPicker, WithoutALookTheListOffersNoNone)
{
	OpenPicker();
	EXPECT_FALSE(StandIn::FindText(GetLastMenu(), TEXT("( None )")).IsValid());
}

TEST_F(FLookPicker, WithALookTheListOffersNone)
{
	SetRecord(0, false, 1.0f, LoadLook("Teal"));
	OpenPicker();
	EXPECT_TRUE(StandIn::FindText(GetLastMenu(), TEXT("( None )")).IsValid());
}

TEST_F(FLookPicker, OffersNoNewAsset)
{
	OpenPicker();
	EXPECT_EQ(ToStd(User->GetHeadings(2)), "Asset selection|Browse");
}

TEST_F(FLookPicker, ClearIsOfferedAfterAPickInTheSameMenu)
{
	OpenPicker();
	ClickLook(TEXT("Teal"));
	User->MoveTo(User->FindRow(TEXT("Enable Display")).Centre);
	HoverLookRow();
	EXPECT_EQ(GetRowLabels(), "Edit|Clear");
	EXPECT_EQ(GetPickerNames(), "Amber|Zinc");
}

// A pick.

TEST_F(FLookPicker, APickSetsTheLook)
{
	OpenWatchedPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(LookName(&Changes.at(0)), "Teal");
}

TEST_F(FLookPicker, APickTellsOfItOnce)
{
	OpenWatchedPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(Changes.size(), 1u);
}

TEST_F(FLookPicker, APickCarriesTheWholeRecord)
{
	OpenWatchedPicker(LoadLook("Amber"), true, 0.25f);
	ClickLook(TEXT("Teal"));
	EXPECT_TRUE(Changes.at(0).bEnableDisplay && Changes.at(0).Intensity == 0.25f);
}

TEST_F(FLookPicker, APickLoadsALookThatWasNotLoaded)
{
	const bool bBefore = FindObject<UTintmillObject>(nullptr, TEXT("/Game/Looks/Teal.Teal")) != nullptr;
	OpenWatchedPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_FALSE(bBefore);
	EXPECT_EQ(Changes.at(0).LookAsset, FindObject<UTintmillObject>(nullptr, TEXT("/Game/Looks/Teal.Teal")));
}

TEST_F(FLookPicker, APickClosesThePickerBeforeItTellsOfTheChange)
{
	OpenWatchedPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(MenusAtChange, 1);
}

TEST_F(FLookPicker, APickLeavesPanelAndViewMenuOpen)
{
	OpenPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(User->CountMenus(), 2);
}

TEST_F(FLookPicker, TheRowReadsTheNewNameAtOnce)
{
	OpenPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(ToStd(FindLookRow().Label), "Teal");
}

TEST_F(FLookPicker, APickReachesTheRecordOfTheActiveViewport)
{
	OpenPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(LookName(FindRecord(0)), "Teal");
}

TEST_F(FLookPicker, APickNeitherSwitchesOnNorResetsTheIntensity)
{
	SetRecord(0, false, 0.25f, nullptr);
	OpenPicker();
	ClickLook(TEXT("Teal"));
	EXPECT_TRUE(!FindRecord(0)->bEnableDisplay && FindRecord(0)->Intensity == 0.25f);
}

TEST_F(FLookPicker, TypingAndEnterPickToo)
{
	OpenPicker();
	User->Type(TEXT("zin"));
	User->Press(EKeys::Enter);
	EXPECT_EQ(LookName(FindRecord(0)), "Zinc");
}

TEST_F(FLookPicker, ArrowKeysAloneTellOfNothing)
{
	OpenWatchedPicker();
	User->Press(EKeys::Down);
	User->Press(EKeys::Down);
	EXPECT_TRUE(Changes.empty());
}

TEST_F(FLookPicker, OpeningAndLeavingThePickerTellsOfNothing)
{
	OpenWatchedPicker(LoadLook("Teal"));
	User->Press(EKeys::Escape);
	EXPECT_TRUE(Changes.empty());
}

TEST_F(FLookPicker, TheSamePickTellsOfItAgain)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPanel();
	const TSharedRef<SWidget> Picker = GetPickerEntry(GeneratePickerMenu()).MakeWidget.Execute(FToolMenuContext());
	for (int32 Time = 0; Time < 2; ++Time)
	{
		User->Open(Picker);
		User->Wait(0.1f);
		ClickLook(TEXT("Teal"));
	}
	ASSERT_EQ(Changes.size(), 2u);
	EXPECT_TRUE(LookName(&Changes[0]) == "Teal" && LookName(&Changes[1]) == "Teal");
}

TEST_F(FLookPicker, APickWithoutAListenerStillSetsTheLook)
{
	User->Open(SNew(STintmillWidget).Viewport(GetViewport(0)));
	HoverLookRow();
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(ToStd(FindLookRow().Label), "Teal");
}

TEST_F(FLookPicker, APickForAPanelThatIsGoneIsPassedOver)
{
	TSharedPtr<STintmillWidget> Widget = OpenWatchedPanel();
	const TSharedRef<SWidget> Picker = GetPickerEntry(GeneratePickerMenu()).MakeWidget.Execute(FToolMenuContext());
	CloseMenus();
	User->Wait(0.1f);
	Widget.Reset();
	User->Open(Picker);
	User->Wait(0.1f);
	ClickLook(TEXT("Teal"));
	EXPECT_TRUE(Changes.empty());
	EXPECT_EQ(User->CountMenus(), 1);
}

TEST_F(FLookPicker, APickGoesToTheViewportThatIsActiveWhenItHappens)
{
	CloseMenus();
	User.reset();
	ExitEditor();
	ShowEditor();
	Activate(1);
	OpenPicker(0);
	Activate(3);
	ClickLook(TEXT("Teal"));
	EXPECT_EQ(LookName(FindRecord(3)) + "," + LookName(FindRecord(1)), "Teal,");
}

// A clear.

TEST_F(FLookPicker, ClearSetsNoLook)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPicker(LoadLook("Teal"));
	User->Click(TEXT("Clear"));
	EXPECT_EQ(Changes.at(0).LookAsset, nullptr);
}

TEST_F(FLookPicker, ClearTellsOfItOnce)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPicker(LoadLook("Teal"));
	User->Click(TEXT("Clear"));
	EXPECT_EQ(Changes.size(), 1u);
}

TEST_F(FLookPicker, ClearKeepsTheRestOfTheRecord)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPicker(LoadLook("Teal"), true, 0.25f);
	User->Click(TEXT("Clear"));
	EXPECT_TRUE(Changes.at(0).bEnableDisplay && Changes.at(0).Intensity == 0.25f);
}

TEST_F(FLookPicker, ClearClosesThePickerBeforeItTellsOfTheChange)
{
	const TSharedRef<STintmillWidget> Widget = OpenWatchedPicker(LoadLook("Teal"));
	User->Click(TEXT("Clear"));
	EXPECT_LT(MenusAtChange, 2);
}

TEST_F(FLookPicker, ClearInTheViewMenuReachesTheRecord)
{
	SetRecord(0, true, 1.0f, LoadLook("Teal"));
	OpenPicker();
	User->Click(TEXT("Clear"));
	EXPECT_EQ(FindRecord(0)->LookAsset, nullptr);
}

TEST_F(FLookPicker, NoneInTheListClearsToo)
{
	OpenWatchedPicker(LoadLook("Teal"));
	ClickNone();
	ASSERT_EQ(Changes.size(), 1u);
	EXPECT_EQ(Changes[0].LookAsset, nullptr);
}

TEST_F(FLookPicker, TheRowReadsAsWithoutALookAfterAClear)
{
	SetRecord(0, true, 1.0f, LoadLook("Teal"));
	OpenPicker();
	ClickNone();
	EXPECT_EQ(ToStd(FindLookRow().Label), "Select a TML Asset");
}

TEST_F(FLookPicker, EditChangesNothing)
{
	OpenWatchedPicker(LoadLook("Teal"));
	User->Press(EKeys::Escape);
	HoverLookRow();
	EXPECT_TRUE(Changes.empty());
}

// Bad picks.

TEST_F(FLookPicker, APickThatIsNoLookEmptiesTheSelection)
{
	OpenWatchedPicker(LoadLook("Teal"));
	PutForeignObject(TEXT("Zinc"));
	ClickLook(TEXT("Zinc"));
	ASSERT_EQ(Changes.size(), 1u);
	EXPECT_EQ(Changes[0].LookAsset, nullptr);
}

TEST_F(FLookPicker, TheRowReadsAsWithoutALookAfterAPickThatIsNone)
{
	SetRecord(0, true, 1.0f, LoadLook("Teal"));
	OpenPicker();
	PutForeignObject(TEXT("Zinc"));
	ClickLook(TEXT("Zinc"));
	EXPECT_EQ(ToStd(FindLookRow().Label), "Select a TML Asset");
}

TEST_F(FLookPicker, APickWhoseFileIsGoneEmptiesTheSelection)
{
	OpenWatchedPicker(LoadLook("Teal"));
	Delete("Zinc");
	ClickLook(TEXT("Zinc"));
	ASSERT_EQ(Changes.size(), 1u);
	EXPECT_EQ(Changes[0].LookAsset, nullptr);
}

TEST_F(FLookPicker, APickWhoseFileIsGoneMakesOneNotice)
{
	OpenPicker();
	Delete("Zinc");
	ClickLook(TEXT("Zinc"));
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_TRUE(StandIn::GetNotices()[0].Text.Contains(TEXT("/Game/Looks/Zinc")));
}

TEST_F(FLookPicker, APickWhoseFileIsGoneButThatIsLoadedIsTaken)
{
	LoadLook("Zinc");
	OpenPicker();
	Delete("Zinc");
	ClickLook(TEXT("Zinc"));
	EXPECT_EQ(LookName(FindRecord(0)), "Zinc");
}

TEST_F(FLookPicker, APickedLookWhoseFileIsGoneStaysPickedAndIsNotListed)
{
	SetRecord(0, true, 1.0f, LoadLook("Teal"));
	Delete("Teal");
	OpenPicker();
	EXPECT_EQ(ToStd(FindLookRow().Label), "Teal");
	EXPECT_EQ(GetPickerNames(), "Amber|Zinc");
}

TEST_F(FLookPicker, AGoodPickMakesNoNotice)
{
	OpenPicker();
	ClickLook(TEXT("Zinc"));
	EXPECT_EQ(StandIn::GetNotices().Num(), 0);
}

// Names and numbers.

class FLookPickerNames : public FLookPicker
{
protected:
	/** Writes a look under a name of any script. */
	void WriteNamed(const std::u8string& Name) const
	{
		std::filesystem::copy_file(
			Project.NativePath("Content/Looks/Teal.cube"), Project.NativePath("Content/Looks") / std::filesystem::path(Name + u8".cube"));
	}

	/** Texts drawn in any window that begin with some characters; each must end inside an area, sideways. */
	void ExpectInside(const TCHAR* Start, const FSlateRect& Area) const
	{
		int32 Found = 0;
		TArray<TSharedRef<SWindow>> Windows;
		FSlateApplication::Get().GetAllVisibleWindowsOrdered(Windows);
		for (const TSharedRef<SWindow>& Window : Windows)
		{
			for (const FSlateDrawElement& Element : Window->GetElementList().GetElements())
			{
				const FString Text = Element.GetElementType() == EElementType::ET_Text ? Element.GetText() : FString();
				if (!Text.StartsWith(Start))
				{
					continue;
				}
				++Found;
				const float Width = StandIn::GetFontMeasurer().MeasureLine(*Text, Text.Len(), Element.GetFontInfo(), 1.0f);
				EXPECT_GE(Element.GetRect().Left, Area.Left);
				EXPECT_LE(Element.GetRect().Left + Width, Area.Right);
			}
		}
		EXPECT_GT(Found, 0);
	}

	FSlateRect GetListArea() const
	{
		const StandIn::FAssetPickerState Picker = GetPicker();
		return FSlateRect::FromPointAndExtent(Picker.ListTopLeft, Picker.ListSize);
	}

	const std::u8string LongName = u8"Wide" + std::u8string(150, u8'W');
	const std::u8string RightToLeftName = u8"\u05D2\u05D5\u05D5\u05DF_\u05D7\u05DD";
};

TEST_F(FLookPickerNames, AVeryLongNameStaysInsideItsRowOfTheList)
{
	WriteNamed(LongName);
	OpenPicker();
	ExpectInside(TEXT("WideWW"), GetListArea());
}

TEST_F(FLookPickerNames, AVeryLongNameStaysBesideTheScrollBar)
{
	for (int32 Index = 0; Index < 20; ++Index)
	{
		WriteLook("Look" + std::to_string(Index));
	}
	WriteNamed(u8"A" + LongName);
	OpenPicker();
	FSlateRect Area = GetListArea();
	Area.Right -= 8.0f;
	ExpectInside(TEXT("AWideWW"), Area);
}

TEST_F(FLookPickerNames, AVeryLongNameStaysInsideThePanelsRow)
{
	WriteNamed(LongName);
	OpenPicker();
	User->Type(TEXT("Wide"));
	User->Press(EKeys::Enter);
	User->Wait(0.1f);
	ExpectInside(TEXT("WideWW"), FindLookRow().Widget->GetCachedGeometry().GetLayoutBoundingRect());
}

TEST_F(FLookPickerNames, AVeryLongNameLeavesThePanelInsideTheWindow)
{
	WriteNamed(LongName);
	OpenPicker();
	User->Type(TEXT("Wide"));
	User->Press(EKeys::Enter);
	User->Wait(0.1f);
	EXPECT_LE(FindLookRow().Widget->GetCachedGeometry().GetLayoutBoundingRect().Right, 1200.0f);
}

TEST_F(FLookPickerNames, ARightToLeftNameStaysInsideItsRowOfTheList)
{
	WriteNamed(RightToLeftName);
	OpenPicker();
	ExpectInside(TEXT("\u05D2\u05D5"), GetListArea());
}

TEST_F(FLookPickerNames, ALongRightToLeftNameStaysInsideItsRowOfTheList)
{
	std::u8string Name;
	for (int32 Index = 0; Index < 60; ++Index)
	{
		Name += u8"\u05D2\u05D5";
	}
	WriteNamed(Name);
	OpenPicker();
	ExpectInside(TEXT("\u05D2\u05D5"), GetListArea());
}

TEST_F(FLookPickerNames, ARightToLeftNameCanBePicked)
{
	WriteNamed(RightToLeftName);
	OpenPicker();
	ClickLook(TEXT("\u05D2\u05D5\u05D5\u05DF_\u05D7\u05DD"));
	EXPECT_EQ(FindLookRow().Label, FString(TEXT("\u05D2\u05D5\u05D5\u05DF_\u05D7\u05DD")));
}

TEST_F(FLookPickerNames, TenThousandLooksAreListedAndSearchedWithoutDelay)
{
	// Links, for making that many files takes a disk some seconds.
	for (int32 Index = 0; Index < 10000; ++Index)
	{
		const std::string Folder = "Content/Looks/Set" + std::to_string(Index / 1000);
		std::filesystem::create_directories(Project.NativePath(Folder));
		std::filesystem::create_hard_link(
			Project.NativePath("Content/Looks/Teal.cube"), Project.NativePath(Folder + "/Look" + std::to_string(10000 + Index) + ".cube"));
	}
	// Nobody works in those folders.
	for (int32 Set = 0; Set < 10; ++Set)
	{
		SetChangedHoursAgo(Project.NativePath("Content/Looks/Set" + std::to_string(Set)), 1);
	}
	for (const char* Folder : {"Content/Looks", "Content"})
	{
		SetChangedHoursAgo(Project.NativePath(Folder), 1);
	}
	OpenPanel();
	const std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
	HoverLookRow();
	const std::chrono::steady_clock::time_point Opened = std::chrono::steady_clock::now();
	User->Type(TEXT("19999"));
	const std::chrono::steady_clock::time_point Searched = std::chrono::steady_clock::now();
	CloseMenus();
	OpenPanel();
	const std::chrono::steady_clock::time_point Again = std::chrono::steady_clock::now();
	HoverLookRow();
	const std::chrono::steady_clock::time_point Reopened = std::chrono::steady_clock::now();
	const auto Milliseconds = [](auto Duration) { return std::chrono::duration<double, std::milli>(Duration).count(); };
	std::cout << "10000 looks: first opening " << Milliseconds(Opened - Start) << " ms, five letters " << Milliseconds(Searched - Opened)
			  << " ms, second opening " << Milliseconds(Reopened - Again) << " ms\n";
	EXPECT_EQ(GetPicker().Rows.Num(), 10003);
	// Far above what a busy machine needs, far below what work that grows with the square of the looks would take.
	EXPECT_LT(Milliseconds(Reopened - Start), 60000.0);
}
}

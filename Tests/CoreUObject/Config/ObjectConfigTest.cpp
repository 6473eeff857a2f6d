// Copyright The Tintmill authors. All rights reserved.

#include "ConfigFixture.h"
#include "HAL/FileManager.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/ObjectSystem.h"
#include "Support/LogCapture.h"
#include "UObject/Package.h"

#include <chrono>

namespace
{
typedef FConfigFixture UObjectConfig;

std::string Notices()
{
	std::string All;
	for (const StandIn::FNotice& Notice : StandIn::GetNotices())
	{
		All += ToStd(Notice.Text) + "\n";
	}
	return All;
}
}

TEST_F(UObjectConfig, SavesEveryConfigPropertyAsOneLineInTheClassSection)
{
	UCoreTestSettings* Settings = LoadSettings();
	Settings->bSwitch = true;
	Settings->Title = TEXT("A title");
	Settings->Tag = TEXT("Pane 1");
	Settings->Kind = ECoreTestKind::Two;
	Settings->Slots[1] = 9;
	Save(Settings);
	EXPECT_EQ(ReadSaved(),
		"[/Script/CoreUObjectTestTypes.CoreTestSettings]\nbSwitch=True\nCount=4\nShare=0.250000\nTitle=A title\nTag=Pane "
		"1\nKind=Two\nSlots[0]=0\nSlots[1]=9\n\n");
}

TEST_F(UObjectConfig, SavesAnArrayAsOneBareKeyLineAnElementInOrder)
{
	UCoreTestSettings* Settings = LoadSettings();
	Settings->GetPairs().SetNum(2);
	Settings->GetPairs()[0].Identifier = TEXT("FourPanes2x2.Viewport 1.Viewport1");
	Settings->GetPairs()[1].Identifier = TEXT("B");
	Settings->GetPairs()[1].Look.bEnable = true;
	Settings->GetPairs()[1].Look.Intensity = 0.35f;
	Save(Settings);
	EXPECT_NE(
		ReadSaved().find("Pairs=(Identifier=\"FourPanes2x2.Viewport "
						 "1.Viewport1\",Look=(bEnable=False,Intensity=1.000000,Asset=None))\nPairs=(Identifier=\"B\",Look=(bEnable=True,"
						 "Intensity=0.350000,Asset=None))\n"),
		std::string::npos);
}

TEST_F(UObjectConfig, SavesAnAssetByShortClassAndQuotedPath)
{
	Folder.Write("Content/Looks/Warm.coretest", "");
	UCoreTestSettings* Settings = LoadSettings();
	Settings->GetPairs().SetNum(1);
	Settings->GetPairs()[0].Look.Asset = LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/Looks/Warm.Warm"));
	Save(Settings);
	EXPECT_NE(ReadSaved().find("Asset=CoreTestAsset'\"/Game/Looks/Warm.Warm\"'))"), std::string::npos);
}

TEST_F(UObjectConfig, SavesNoKeyForAnEmptyArray)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=(Identifier=\"A\")\n");
	Settings->GetPairs().Empty();
	Save(Settings);
	EXPECT_EQ(ReadSaved().find("Pairs"), std::string::npos);
}

TEST_F(UObjectConfig, KeepsKeysThatTheClassDoesNotKnow)
{
	UCoreTestSettings* Settings = LoadSettings("Stranger=1\nPairs=(Identifier=\"A\")\n");
	Settings->GetPairs().SetNum(3);
	Save(Settings);
	EXPECT_NE(ReadSaved().find("Stranger=1\n"), std::string::npos);
}

TEST_F(UObjectConfig, ReadsBackWhatItSaved)
{
	UCoreTestSettings* Settings = LoadSettings();
	Settings->Title = TEXT(" \"quoted\" // {x} \n end ");
	Settings->Share = -12.5f;
	Settings->GetPairs().SetNum(1);
	Settings->GetPairs()[0].Identifier = TEXT("A.B C.D");
	Save(Settings);
	FConfigCacheIni::InitializeConfigSystem();
	const UCoreTestSettings* Read = LoadSettings();
	EXPECT_EQ(std::make_tuple(ToStd(Read->Title), Read->Share, ToStd(const_cast<UCoreTestSettings*>(Read)->GetPairs()[0].Identifier)),
		std::make_tuple(std::string(" \"quoted\" // {x} \n end "), -12.5f, std::string("A.B C.D")));
}

TEST_F(UObjectConfig, LoadsTheLinesOfAKeyInFileOrder)
{
	UCoreTestSettings* Settings =
		LoadSettings("Pairs=(Identifier=\"B\")\nPairs=(Identifier=\"A\")\nPairs=(Identifier=\"B\",Look=(Intensity=2))\n");
	ASSERT_EQ(Settings->GetPairs().Num(), 3);
	EXPECT_EQ(
		ToStd(Settings->GetPairs()[0].Identifier) + ToStd(Settings->GetPairs()[1].Identifier) + ToStd(Settings->GetPairs()[2].Identifier),
		"BAB");
}

TEST_F(UObjectConfig, ReplacesTheArrayByTheLinesOfTheFile)
{
	WriteSettings("Pairs=(Identifier=\"New\")\n");
	UCoreTestSettings* Settings = NewObject<UCoreTestSettings>();
	Settings->GetPairs().SetNum(5);
	Settings->LoadConfig();
	EXPECT_EQ(Settings->GetPairs().Num(), 1);
}

TEST_F(UObjectConfig, KeepsTheValueOfAKeyWithoutLines)
{
	WriteSettings("bSwitch=True\n");
	UCoreTestSettings* Settings = NewObject<UCoreTestSettings>();
	Settings->GetPairs().SetNum(5);
	Settings->LoadConfig();
	EXPECT_EQ(Settings->GetPairs().Num(), 5);
}

TEST_F(UObjectConfig, ReadsKeysInAnyCase)
{
	EXPECT_EQ(LoadSettings("PAIRS=(identifier=\"a\")\npairs=(IDENTIFIER=\"b\")\n")->GetPairs().Num(), 2);
}

TEST_F(UObjectConfig, ReadsFixedArraysByIndexedKeys)
{
	EXPECT_EQ(LoadSettings("Slots[1]=6\n")->Slots[1], 6);
}

TEST_F(UObjectConfig, LeavesPropertiesWithoutConfigFlagAlone)
{
	EXPECT_EQ(LoadSettings("NotKept=5\n")->NotKept, 1);
}

TEST_F(UObjectConfig, LoadsIntoTheDefaultObjectWhenThatIsMade)
{
	StandIn::ShutdownObjectSystem();
	WriteSettings("Count=77\n");
	StandIn::StartObjectSystem();
	const int32 Count = GetDefault<UCoreTestSettings>()->Count;
	StandIn::ShutdownObjectSystem();
	WriteSettings("");
	StandIn::StartObjectSystem();
	EXPECT_EQ(Count, 77);
}

TEST_F(UObjectConfig, LoadsParentSectionsIntoTheDefaultObjectOfAChild)
{
	Folder.Write(SavedFile(),
		"[/Script/CoreUObjectTestTypes.CoreTestSettings]\nCount=5\nShare=2.0\n\n[/Script/CoreUObjectTestTypes.CoreTestChildSettings]\nCount=6\nOwn=1\n");
	FConfigCacheIni::InitializeConfigSystem();
	UCoreTestChildSettings* Settings = NewObject<UCoreTestChildSettings>();
	Settings->LoadConfig(nullptr, nullptr, UE4::LCPF_ReadParentSections);
	EXPECT_EQ(std::make_tuple(Settings->Count, Settings->Share, Settings->Own), std::make_tuple(6, 2.0f, 1));
}

TEST_F(UObjectConfig, GivesNewObjectsTheConfiguredValuesOfTheDefaultObject)
{
	GetMutableDefault<UCoreTestSettings>()->Count = 31;
	const int32 Count = NewObject<UCoreTestSettings>()->Count;
	GetMutableDefault<UCoreTestSettings>()->Count = 4;
	EXPECT_EQ(Count, 31);
}

TEST_F(UObjectConfig, CopiesASavedObjectToTheDefaultObjectIfAllowed)
{
	UCoreTestSettings* Settings = LoadSettings();
	Settings->Count = 12;
	Settings->SaveConfig();
	const int32 Count = GetDefault<UCoreTestSettings>()->Count;
	GetMutableDefault<UCoreTestSettings>()->Count = 4;
	EXPECT_EQ(Count, 12);
}

TEST_F(UObjectConfig, ReadsTheDefaultIniBelowTheSavedFile)
{
	Folder.Write("Config/DefaultEditorPerProjectUserSettings.ini",
		"[/Script/CoreUObjectTestTypes.CoreTestSettings]\n+Pairs=(Identifier=\"D1\")\n+Pairs=(Identifier=\"D2\")\nCount=8\n");
	FConfigCacheIni::InitializeConfigSystem();
	UCoreTestSettings* Settings = LoadSettings();
	EXPECT_EQ(std::make_tuple(Settings->GetPairs().Num(), Settings->Count), std::make_tuple(2, 8));
}

TEST_F(UObjectConfig, LeavesAnElementForALineThatFails)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=nonsense\nPairs=(Identifier=\"B\")\n");
	ASSERT_EQ(Settings->GetPairs().Num(), 2);
	EXPECT_EQ(ToStd(Settings->GetPairs()[0].Identifier) + "|" + ToStd(Settings->GetPairs()[1].Identifier), "None|B");
}

TEST_F(UObjectConfig, KeepsTheFieldsReadBeforeALineBreaksOff)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=(Identifier=\"B\",Look=(bEnable=True\n");
	ASSERT_EQ(Settings->GetPairs().Num(), 1);
	EXPECT_EQ(std::make_tuple(ToStd(Settings->GetPairs()[0].Identifier), Settings->GetPairs()[0].Look.bEnable),
		std::make_tuple(std::string("B"), true));
}

TEST_F(UObjectConfig, GivesOneNoticeForABadLineWithFileAndLine)
{
	LoadSettings("Pairs=(Identifier=\"A\",Look=(Intensity=lots,bEnable=maybe))\nPairs=(Identifier=\"B\")\n");
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_EQ(Notices().find(ToStd(FPaths::ConvertRelativePathToFull(Folder.Path(SavedFile()))) + ":2: "), 0u) << Notices();
}

TEST_F(UObjectConfig, SaysInTheNoticeWhatIsWrongAndWhereTheCopyGoes)
{
	LoadSettings("Pairs=(Identifier=\"A\",Look=(Intensity=lots))\n");
	EXPECT_NE(Notices().find("Intensity=lots is not a number and was left at its default. The file will be copied to "), std::string::npos)
		<< Notices();
}

TEST_F(UObjectConfig, GivesNoNoticeForGoodLines)
{
	LoadSettings(
		"Pairs=(Identifier=\"A\",Look=(Intensity=1.5f,),)\nPairs=( identifier = B , Look = ( bEnable = yes ) )\nCount= 5\nKind=three\n");
	EXPECT_EQ(Notices(), "");
}

TEST_F(UObjectConfig, NoticesEveryKindOfLoss)
{
	for (const char* Line : {"Pairs=", "Pairs=(Identifier=A B)", "Pairs=(Unknown=1)", "Pairs=(Identifier=A,Identifier=B)",
			 "Pairs=(Identifier)", "Pairs=(Identifier=\"A)", "Pairs=(Identifier=A) x", "Pairs=(Look=5)", "Count=9999999999", "Count=many",
			 "Count=5 apples", "Share=nan", "bSwitch=perhaps", "Kind=Seven", "Pairs=(Look=(Asset=CoreTestAsset'\"/Game/Gone.Gone\"'))",
			 "Pairs=(Look=(Asset=Mystery'/Game/A.A'))", "Pairs=(Look=(Asset=/Script/CoreUObject.Class))", "Count=5\nCount=6"})
	{
		StandIn::ClearNotices();
		LoadSettings(std::string(Line) + "\n");
		EXPECT_EQ(StandIn::GetNotices().Num(), 1) << Line << "\n" << Notices();
	}
}

TEST_F(UObjectConfig, ReadsAMissingAssetAsNullWithOneNotice)
{
	UCoreTestSettings* Settings =
		LoadSettings("Pairs=(Identifier=\"A\",Look=(bEnable=True,Asset=CoreTestAsset'\"/Game/Gone.Gone\"',Intensity=2))\n");
	ASSERT_EQ(Settings->GetPairs().Num(), 1);
	EXPECT_TRUE(
		Settings->GetPairs()[0].Look.Asset == nullptr && Settings->GetPairs()[0].Look.Intensity == 2.0f && StandIn::GetNotices().Num() == 1)
		<< Notices();
}

TEST_F(UObjectConfig, KeepsTheFileAsideBeforeASaveDropsABadLine)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=(Identifier=\"A\",Look=(Asset=CoreTestAsset'\"/Game/Gone.Gone\"'))\n");
	const std::string Before = Folder.Read(SavedFile());
	Save(Settings);
	EXPECT_EQ(Folder.Read(SavedFile() + ".kept-1"), Before);
}

TEST_F(UObjectConfig, KeepsNothingAsideForGoodLines)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=(Identifier=\"A\")\n");
	Settings->GetPairs().Empty();
	Save(Settings);
	EXPECT_FALSE(IFileManager::Get().FileExists(*Folder.Path(SavedFile() + ".kept-1")));
}

TEST_F(UObjectConfig, KeepsTheFileAsideOnceALoad)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=broken\n");
	Save(Settings);
	Settings->Count = 100;
	Save(Settings);
	EXPECT_FALSE(IFileManager::Get().FileExists(*Folder.Path(SavedFile() + ".kept-2")));
}

TEST_F(UObjectConfig, TakesTheNextNumberForAnotherBadFile)
{
	Folder.Write(SavedFile() + ".kept-1", "older");
	Save(LoadSettings("Pairs=broken\n"));
	EXPECT_NE(Folder.Read(SavedFile() + ".kept-2").find("Pairs=broken"), std::string::npos);
}

TEST_F(UObjectConfig, UsesACopyOfTheSameContentAgain)
{
	Save(LoadSettings("Pairs=broken\n"));
	Save(LoadSettings("Pairs=broken\n"));
	EXPECT_FALSE(IFileManager::Get().FileExists(*Folder.Path(SavedFile() + ".kept-2")));
}

TEST_F(UObjectConfig, SavesNothingWhenTheCopyCannotBeMade)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=broken\n");
	const std::string Before = Folder.Read(SavedFile());
	StandIn::ClearNotices();
	StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep, const TCHAR* FileName) { return !FString(FileName).Contains(TEXT(".kept-")); });
	Save(Settings);
	StandIn::SetAtomicFileHook(nullptr);
	EXPECT_EQ(Folder.Read(SavedFile()), Before);
	EXPECT_NE(Notices().find(
				  "were not saved, because the file has lines that could not be read and no copy of it could be made: injected failure"),
		std::string::npos)
		<< Notices();
}

TEST_F(UObjectConfig, SavesOnceTheCopyCanBeMadeAgain)
{
	UCoreTestSettings* Settings = LoadSettings("Pairs=broken\n");
	StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep, const TCHAR* FileName) { return !FString(FileName).Contains(TEXT(".kept-")); });
	Save(Settings);
	StandIn::SetAtomicFileHook(nullptr);
	Save(Settings);
	EXPECT_TRUE(
		ReadSaved().find("Count=4") != std::string::npos && Folder.Read(SavedFile() + ".kept-1").find("broken") != std::string::npos);
}

TEST_F(UObjectConfig, ForgetsTheNoticesOfLinesThatAreReadAgainInGoodOrder)
{
	LoadSettings("Pairs=broken\n");
	LoadSettings("Pairs=(Identifier=\"A\")\n");
	EXPECT_EQ(Notices(), "");
}

TEST_F(UObjectConfig, CountsBadLinesBeyondTheHundredthInOneNotice)
{
	std::string Lines;
	for (int Line = 0; Line < 150; ++Line)
	{
		Lines += "Pairs=broken\n";
	}
	LoadSettings(Lines);
	ASSERT_EQ(StandIn::GetNotices().Num(), 101);
	EXPECT_NE(Notices().find("50 more lines of Pairs could not be read whole."), std::string::npos);
}

TEST_F(UObjectConfig, NamesADefaultIniWithoutPromisingACopy)
{
	Folder.Write("Config/DefaultEditorPerProjectUserSettings.ini", "[/Script/CoreUObjectTestTypes.CoreTestSettings]\nCount=x\n");
	FConfigCacheIni::InitializeConfigSystem();
	LoadSettings();
	EXPECT_TRUE(
		Notices().find("DefaultEditorPerProjectUserSettings.ini:2: ") != std::string::npos && Notices().find("copied") == std::string::npos)
		<< Notices();
}

TEST_F(UObjectConfig, SavesNothingWhenTheClassHasNoConfig)
{
	NewObject<UCoreTestObject>()->SaveConfig();
	EXPECT_FALSE(IFileManager::Get().FileExists(*Folder.Path(SavedFile())));
}

TEST_F(UObjectConfig, LoadsAndSavesAHundredThousandElementsQuickly)
{
	std::string Lines;
	for (int Line = 0; Line < 100000; ++Line)
	{
		Lines += "Pairs=(Identifier=\"Pane" + std::to_string(Line) + "\",Look=(bEnable=True,Intensity=0.500000,Asset=None))\n";
	}
	const auto Start = std::chrono::steady_clock::now();
	UCoreTestSettings* Settings = LoadSettings(Lines);
	Settings->GetPairs()[0].Look.Intensity = 0.75f;
	Save(Settings);
	const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	ASSERT_EQ(Settings->GetPairs().Num(), 100000);
	// Far above what a busy machine needs, far below what work that grows with the square of the elements would take.
	EXPECT_LT(Seconds, 60.0);
}

TEST_F(UObjectConfig, LoadsAHundredThousandBrokenElementsQuickly)
{
	std::string Lines;
	for (int Line = 0; Line < 100000; ++Line)
	{
		Lines += "Pairs=(Identifier=\"Pane\",Look=(bEnable=Tru,Asset=CoreTestAsset'\"/Game/Gone.Gone\"'))\n";
	}
	const auto Start = std::chrono::steady_clock::now();
	LoadSettings(Lines);
	EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count(), 8.0);
}

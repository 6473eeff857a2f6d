// Copyright The Tintmill authors. All rights reserved.

#include "ConfigFixture.h"
#include "Support/LogCapture.h"
#include "ValueTextHelpers.h"

namespace
{
// Assets below /Game/ in a folder of the test's own.
typedef FConfigFixture ObjectProperty;
}

TEST_F(ObjectProperty, WritesClassAndQuotedPath)
{
	Folder.Write("Content/Looks/Teal.coretest", "");
	FCoreTestValues Value;
	Value.Object = LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/Looks/Teal.Teal"));
	EXPECT_EQ(ExportField(Value, TEXT("Object")), "CoreTestAsset'\"/Game/Looks/Teal.Teal\"'");
}

TEST_F(ObjectProperty, WritesNullAsNone)
{
	EXPECT_EQ(ExportField(FCoreTestValues(), TEXT("Object")) + ExportField(FCoreTestValues(), TEXT("Weak")), "NoneNone");
}

TEST_F(ObjectProperty, ReadsAllFormsAndLoadsTheAsset)
{
	Folder.Write("Content/Looks/Teal.coretest", "");
	for (const char* Form : {"CoreTestAsset'\"/Game/Looks/Teal.Teal\"'", "CoreTestAsset'/Game/Looks/Teal.Teal'",
			 "\"/Game/Looks/Teal.Teal\"", "/Game/Looks/Teal.Teal", "coretestasset'\"/game/looks/teal.TEAL\"'"})
	{
		const FValuesText Read(std::string("(Object=") + Form + ",Int32=9)");
		EXPECT_TRUE(Read->Object != nullptr && Read->Object->IsA<UCoreTestAsset>() && Read->Int32 == 9) << Form;
		CollectGarbage(RF_NoFlags);
	}
}

TEST_F(ObjectProperty, ReadsNoneAsNullWithoutComplaint)
{
	const FValuesText Read("(Object=NONE)");
	EXPECT_TRUE(Read->Object == nullptr && Read.Errors.Lines.empty());
}

TEST_F(ObjectProperty, ReadsAMissingAssetAsNullWithWarningsInTheLog)
{
	FLogCapture Log;
	const FValuesText Read("(Object=CoreTestAsset'\"/Game/Gone.Gone\"',Int32=9)");
	EXPECT_TRUE(Read->Object == nullptr && Read->Int32 == 9);
	EXPECT_EQ(Log.TextsOf("LogUObjectGlobals"),
		(std::vector<std::string>{
			"Failed to load '/Game/Gone': Can't find file.", "Failed to find object 'CoreTestAsset /Game/Gone.Gone'"}));
}

TEST_F(ObjectProperty, ReadsAnObjectOfAWrongClassAsNull)
{
	Folder.Write("Content/Teal.coretest", "");
	const FValuesText Read("(Class=/Game/Teal.Teal)");
	EXPECT_TRUE(Read->Class.Get() == nullptr && Read.Errors.Lines.size() == 1);
}

TEST_F(ObjectProperty, ReadsAClassByItsPath)
{
	EXPECT_EQ(FValuesText("(Class=Class'\"/Script/CoreUObjectTestTypes.CoreTestChild\"')")->Class.Get(), UCoreTestChild::StaticClass());
}

TEST_F(ObjectProperty, KeepsItsValueWhenTheQuoteStaysOpen)
{
	const FValuesText Read("(Int32=9,Object=CoreTestAsset'\"/Game/X.X)");
	EXPECT_TRUE(!Read.bRead && Read->Int32 == 9 && Read->Object == nullptr);
}

TEST_F(ObjectProperty, WritesAWeakReferenceOnlyWhileTheObjectLives)
{
	FCoreTestValues Value;
	UCoreTestAsset* Asset = NewObject<UCoreTestAsset>();
	Value.Weak = Asset;
	Asset->MarkPendingKill();
	EXPECT_EQ(ExportField(Value, TEXT("Weak")), "None");
}

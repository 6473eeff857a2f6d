// Copyright The Tintmill authors. All rights reserved.

#include "CoreTestObjects.h"
#include "Support/Printers.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "gtest/gtest.h"

namespace
{
UPackage* MakePackage(const TCHAR* Name)
{
	return CreatePackage(Name);
}
}

TEST(NewObject, NamesAnObjectAfterItsClassWithNumbersFromZero)
{
	UPackage* Package = MakePackage(TEXT("/Test/Names"));
	const std::string First = ToStd(NewObject<UCoreTestObject>(Package)->GetName());
	EXPECT_EQ(First + " " + ToStd(NewObject<UCoreTestObject>(Package)->GetName()), "CoreTestObject_0 CoreTestObject_1");
}

TEST(NewObject, SkipsNumbersThatAreTaken)
{
	UPackage* Package = MakePackage(TEXT("/Test/Taken"));
	NewObject<UCoreTestObject>(Package, TEXT("CoreTestObject_0"));
	EXPECT_EQ(ToStd(NewObject<UCoreTestObject>(Package)->GetName()), "CoreTestObject_1");
}

TEST(NewObject, LivesInTheTransientPackageUnlessToldOtherwise)
{
	EXPECT_EQ(NewObject<UCoreTestObject>()->GetOuter(), GetTransientPackage());
}

TEST(NewObject, SetsExactlyTheFlagsThatWereAskedFor)
{
	EXPECT_EQ(
		NewObject<UCoreTestObject>(GetTransientPackage(), NAME_None, RF_Public | RF_Standalone)->GetFlags(), RF_Public | RF_Standalone);
}

TEST(NewObject, RunsTheConstructorAndPostInitProperties)
{
	const UCoreTestObject* Object = NewObject<UCoreTestObject>();
	EXPECT_TRUE(Object->Number == 7 && Object->bPostInit);
}

TEST(NewObject, RunsTheConstructorWithObjectInitializer)
{
	EXPECT_EQ(NewObject<UCoreTestChild>()->Number, 8);
}

TEST(NewObject, MakesDefaultSubobjects)
{
	const UCoreTestChild* Object = NewObject<UCoreTestChild>();
	ASSERT_NE(Object->Subobject, nullptr);
	EXPECT_TRUE(
		Object->Subobject->GetOuter() == Object && Object->Subobject->GetName() == TEXT("Part") && Object->Subobject->IsDefaultSubobject());
}

TEST(NewObject, GivesEachObjectASubobjectOfItsOwn)
{
	EXPECT_NE(NewObject<UCoreTestChild>()->Subobject, GetDefault<UCoreTestChild>()->Subobject);
}

TEST(NewObject, TakesAClassAtRunTime)
{
	EXPECT_EQ(NewObject<UCoreTestObject>(GetTransientPackage(), UCoreTestChild::StaticClass())->GetClass(), UCoreTestChild::StaticClass());
}

TEST(NewObject, StartsFromATemplate)
{
	UCoreTestObject* Template = NewObject<UCoreTestObject>();
	Template->Number = 99;
	EXPECT_EQ(NewObject<UCoreTestObject>(GetTransientPackage(), NAME_None, RF_NoFlags, Template)->Number, 99);
}

TEST(NewObject, TakesTransientValuesFromTheTemplateUnlessToldOtherwise)
{
	UCoreTestObject* Template = NewObject<UCoreTestObject>();
	Template->Passing = 5;
	UCoreTestObject* Copied = NewObject<UCoreTestObject>(GetTransientPackage(), NAME_None, RF_NoFlags, Template);
	UCoreTestObject* Fresh = NewObject<UCoreTestObject>(GetTransientPackage(), NAME_None, RF_NoFlags, Template, true);
	EXPECT_EQ(std::make_pair(Copied->Passing, Fresh->Passing), std::make_pair(5, 0));
}

TEST(NewObject, StartsFromTheConstructorNotFromAChangedDefaultObject)
{
	GetMutableDefault<UCoreTestObject>()->Number = 1000;
	const int32 Number = NewObject<UCoreTestObject>()->Number;
	GetMutableDefault<UCoreTestObject>()->Number = 7;
	EXPECT_EQ(Number, 7);
}

TEST(NewObject, MakesAnObjectOfTheSameNameAndClassAnewInPlace)
{
	UPackage* Package = MakePackage(TEXT("/Test/Anew"));
	UCoreTestObject* First = NewObject<UCoreTestObject>(Package, TEXT("Thing"));
	First->Number = 50;
	UCoreTestObject::Destructions.Empty();
	UCoreTestObject* Second = NewObject<UCoreTestObject>(Package, TEXT("thing"));
	EXPECT_TRUE(First == Second && Second->Number == 7 && UCoreTestObject::Destructions == TEXT("BFD"));
}

TEST(NewObject, LeavesWeakPointersToTheFormerObjectStale)
{
	UPackage* Package = MakePackage(TEXT("/Test/AnewWeak"));
	const TWeakObjectPtr<UCoreTestObject> Weak = NewObject<UCoreTestObject>(Package, TEXT("Thing"));
	NewObject<UCoreTestObject>(Package, TEXT("Thing"));
	EXPECT_FALSE(Weak.IsValid());
}

TEST(NewObject, GivesItsConstructorZeroedMemory)
{
	// Memory that was something else before, so that zeros are not there by chance.
	for (int32 Round = 0; Round < 20; ++Round)
	{
		void* const Used = FMemory::Malloc(sizeof(UCoreTestSparing));
		FMemory::Memset(Used, 0xa5, sizeof(UCoreTestSparing));
		FMemory::Free(Used);
		const UCoreTestSparing* const Object = NewObject<UCoreTestSparing>();
		ASSERT_EQ(Object->Found, 1);
		ASSERT_FALSE(Object->bFoundBit);
		for (const int32 Value : Object->Unreflected)
		{
			ASSERT_EQ(Value, 2);
		}
	}
}

TEST(NewObject, CanCountOnZeroesThatTheOptimizerSees)
{
	int32 Memory[2] = {-1, -1};
	int32 Untouched = -1;
	EXPECT_EQ(UCoreTestSparing::ConstructInMemoryZeroedOnTheSpot(Memory, Untouched), 1);
	EXPECT_EQ(Untouched, 0);
}

TEST(NewObject, LeavesAtZeroWhatTheConstructorLeavesOut)
{
	const UCoreTestSparing* const Object = NewObject<UCoreTestSparing>();
	EXPECT_TRUE(Object->bSet);
	EXPECT_FALSE(Object->bUntouched);
	EXPECT_EQ(Object->Untouched, 0);
}

TEST(NewObjectDeathTest, RefusesANameThatAnotherClassHas)
{
	UPackage* Package = MakePackage(TEXT("/Test/OtherClass"));
	NewObject<UCoreTestObject>(Package, TEXT("Thing"));
	EXPECT_DEATH(NewObject<UCoreTestAsset>(Package, TEXT("Thing")), "Existing Object: CoreTestObject /Test/OtherClass.Thing");
}

TEST(NewObjectDeathTest, RefusesAnAbstractClass)
{
	EXPECT_DEATH(NewObject<UCoreTestAbstract>(), "Class which was marked abstract");
}

TEST(NewObjectDeathTest, RefusesANullClass)
{
	EXPECT_DEATH(NewObject<UObject>(GetTransientPackage(), nullptr), "NewObject called with a nullptr class object");
}

TEST(NewObjectDeathTest, RefusesAClassThatIsNoChild)
{
	EXPECT_DEATH(NewObject<UCoreTestChild>(GetTransientPackage(), UCoreTestAsset::StaticClass()),
		"NewObject called with invalid class, CoreTestAsset must be a child of CoreTestChild");
}

TEST(NewObjectDeathTest, RefusesANullOuter)
{
	EXPECT_DEATH(NewObject<UCoreTestAsset>(nullptr, TEXT("Lost")), "Object is not packaged: CoreTestAsset Lost");
}

TEST(NewObjectDeathTest, RefusesAnOuterOfAWrongClass)
{
	EXPECT_DEATH(NewObject<UCoreTestInside>(GetTransientPackage(), TEXT("In")),
		"Object CoreTestInside In created in Package instead of CoreTestObject");
}

TEST(NewObjectDeathTest, RefusesANamelessSubobjectInAConstructor)
{
	UCoreTestCareless::bCareless = true;
	EXPECT_DEATH(NewObject<UCoreTestCareless>(), "NewObject with empty name can't be used to create default subobjects");
	UCoreTestCareless::bCareless = false;
}

TEST(ObjectInitializerDeathTest, IsThereInConstructorsOnly)
{
	EXPECT_DEATH(FObjectInitializer::Get(), "FObjectInitializer::Get\\(\\) can only be used inside of UObject-derived class constructor.");
}

TEST(Package, IsMadeOnce)
{
	EXPECT_EQ(CreatePackage(TEXT("/Test/Once")), CreatePackage(TEXT("/test/once")));
}

TEST(PackageDeathTest, RefusesAnEmptyName)
{
	EXPECT_DEATH(CreatePackage(TEXT("")), "Attempted to create a package with an empty package name.");
}

TEST(PackageDeathTest, RefusesDoubleSlashes)
{
	EXPECT_DEATH(CreatePackage(TEXT("/Test//X")), "double slashes");
}

TEST(ObjectPath, PutsAColonBeforeTheFirstNameInsideOfATopLevelObject)
{
	UPackage* Package = MakePackage(TEXT("/Test/Paths"));
	UCoreTestObject* Top = NewObject<UCoreTestObject>(Package, TEXT("Top"));
	UCoreTestInside* Inside = NewObject<UCoreTestInside>(Top, TEXT("In"));
	UCoreTestAsset* Deep = NewObject<UCoreTestAsset>(Inside, TEXT("Deep"));
	EXPECT_EQ(ToStd(Deep->GetFullName()), "CoreTestAsset /Test/Paths.Top:In.Deep");
}

TEST(ObjectPath, FindsAnObjectByItsPath)
{
	UCoreTestObject* Top = NewObject<UCoreTestObject>(MakePackage(TEXT("/Test/Finding")), TEXT("Top"));
	UCoreTestInside* Inside = NewObject<UCoreTestInside>(Top, TEXT("In"));
	EXPECT_TRUE(FindObject<UObject>(nullptr, TEXT("/test/finding.top:in")) == Inside && FindObject<UObject>(Top, TEXT("In")) == Inside
		&& FindObject<UCoreTestInside>((UObject*)ANY_PACKAGE, TEXT("In")) == Inside);
}

TEST(ObjectPath, FindsNothingOfAWrongClass)
{
	NewObject<UCoreTestObject>(MakePackage(TEXT("/Test/WrongClass")), TEXT("Top"));
	EXPECT_EQ(FindObject<UCoreTestAsset>(nullptr, TEXT("/Test/WrongClass.Top")), nullptr);
}

TEST(ObjectPath, FindsChildClassesUnlessTheExactOneIsWanted)
{
	UPackage* Package = MakePackage(TEXT("/Test/Exact"));
	NewObject<UCoreTestChild>(Package, TEXT("Top"));
	EXPECT_TRUE(
		FindObject<UCoreTestObject>(Package, TEXT("Top")) != nullptr && FindObject<UCoreTestObject>(Package, TEXT("Top"), true) == nullptr);
}

TEST(Rename, MovesAnObjectToAnotherNameAndOuter)
{
	UPackage* From = MakePackage(TEXT("/Test/RenameFrom"));
	UPackage* To = MakePackage(TEXT("/Test/RenameTo"));
	UCoreTestObject* Object = NewObject<UCoreTestObject>(From, TEXT("Old"));
	Object->Rename(TEXT("New"), To);
	EXPECT_TRUE(FindObject<UObject>(From, TEXT("Old")) == nullptr && FindObject<UObject>(To, TEXT("New")) == Object);
}

TEST(RenameDeathTest, RefusesANameThatIsTaken)
{
	UPackage* Package = MakePackage(TEXT("/Test/RenameTaken"));
	UCoreTestObject* Object = NewObject<UCoreTestObject>(Package, TEXT("A"));
	NewObject<UCoreTestObject>(Package, TEXT("B"));
	EXPECT_DEATH(Object->Rename(TEXT("B")), "on top of an existing object");
}

// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Class.h"
#include "CoreTestObjects.h"
#include "CoreTestSettings.h"
#include "StandIn/ObjectSystem.h"
#include "Support/Printers.h"
#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"
#include "gtest/gtest.h"

TEST(Class, IsNamedWithoutPrefixInTheModulesPackage)
{
	EXPECT_EQ(ToStd(UCoreTestChild::StaticClass()->GetPathName()), "/Script/CoreUObjectTestTypes.CoreTestChild");
}

TEST(Class, KnowsItsParents)
{
	const UClass* Class = UCoreTestChild::StaticClass();
	EXPECT_TRUE(Class->GetSuperClass() == UCoreTestObject::StaticClass() && Class->IsChildOf<UObject>() && Class->IsChildOf(Class)
		&& !UCoreTestObject::StaticClass()->IsChildOf(Class));
}

TEST(Class, IsAChildOfNothingWhenAskedForNull)
{
	EXPECT_FALSE(UCoreTestChild::StaticClass()->IsChildOf(nullptr));
}

TEST(Class, HasTheFlagsOfItsDeclaration)
{
	EXPECT_TRUE(UCoreTestSettings::StaticClass()->HasAllClassFlags(CLASS_Config | CLASS_MatchedSerializers | CLASS_Native)
		&& !UCoreTestSettings::StaticClass()->HasAnyClassFlags(CLASS_DefaultConfig | CLASS_PerObjectConfig | CLASS_Abstract));
}

TEST(Class, HandsConfigDownToItsChildren)
{
	EXPECT_TRUE(UCoreTestChildSettings::StaticClass()->HasAnyClassFlags(CLASS_Config)
		&& UCoreTestChildSettings::StaticClass()->ClassConfigName == FName("EditorPerProjectUserSettings"));
}

TEST(Class, NamesItsDefaultObjectAfterItself)
{
	const UObject* Default = UCoreTestObject::StaticClass()->GetDefaultObject();
	EXPECT_EQ(ToStd(Default->GetPathName()), "/Script/CoreUObjectTestTypes.Default__CoreTestObject");
}

TEST(Class, MarksItsDefaultObject)
{
	EXPECT_TRUE(GetDefault<UCoreTestObject>()->HasAllFlags(RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject));
}

TEST(Class, MakesADefaultObjectForAnAbstractClassToo)
{
	EXPECT_NE(UCoreTestAbstract::StaticClass()->GetDefaultObject(false), nullptr);
}

TEST(Class, GivesTheSameDefaultObjectEachTime)
{
	EXPECT_EQ(GetMutableDefault<UCoreTestSettings>(), UCoreTestSettings::StaticClass()->GetDefaultObject());
}

TEST(Class, IsFoundByShortNameInAnyPackage)
{
	EXPECT_EQ(FindObject<UClass>((UObject*)ANY_PACKAGE, TEXT("CoreTestChild")), UCoreTestChild::StaticClass());
}

TEST(Class, IsFoundByPath)
{
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/CoreUObjectTestTypes.CoreTestChild")), UCoreTestChild::StaticClass());
}

TEST(ClassIteration, MeetsEveryClass)
{
	bool bMet = false;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		bMet |= *It == UCoreTestChild::StaticClass();
	}
	EXPECT_TRUE(bMet);
}

TEST(ClassIteration, ListsDerivedClasses)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UCoreTestObject::StaticClass(), Classes);
	EXPECT_EQ(Classes, TArray<UClass*>({UCoreTestChild::StaticClass()}));
}

TEST(ClassIteration, MeetsDefaultObjectsOnlyWhenTheyAreNotExcluded)
{
	int32 Without = 0;
	int32 With = 0;
	for (TObjectIterator<UCoreTestAbstract> It; It; ++It)
	{
		++Without;
	}
	for (TObjectIterator<UCoreTestAbstract> It(RF_NoFlags); It; ++It)
	{
		++With;
	}
	EXPECT_EQ(std::make_pair(Without, With), std::make_pair(0, 1));
}

TEST(Casts, YieldNullForAnotherClassAndForNull)
{
	UObject* Object = NewObject<UCoreTestObject>();
	EXPECT_TRUE(Cast<UCoreTestChild>(Object) == nullptr && Cast<UCoreTestChild>((UObject*)nullptr) == nullptr
		&& Cast<UCoreTestObject>(Object) == Object);
}

TEST(Casts, ExactCastWantsTheVeryClass)
{
	UObject* Child = NewObject<UCoreTestChild>();
	EXPECT_TRUE(ExactCast<UCoreTestObject>(Child) == nullptr && ExactCast<UCoreTestChild>(Child) == Child);
}

TEST(CastsDeathTest, CheckedEndsWithBothTypes)
{
	UObject* Object = NewObject<UCoreTestObject>((UObject*)GetTransientPackage(), TEXT("Wrong"));
	EXPECT_DEATH(CastChecked<UCoreTestChild>(Object), "Cast of CoreTestObject /Engine/Transient.Wrong to CoreTestChild failed");
}

TEST(CastsDeathTest, CheckedEndsForNull)
{
	EXPECT_DEATH(CastChecked<UCoreTestChild>((UObject*)nullptr), "Cast of nullptr to CoreTestChild failed");
}

TEST(SubclassOf, ReadsAsNullForAClassThatIsNoChild)
{
	const TSubclassOf<UCoreTestObject> Class = UCoreTestAsset::StaticClass();
	EXPECT_TRUE(Class.Get() == nullptr && *Class == nullptr);
}

TEST(SubclassOf, GivesTheClassAndItsDefaultObject)
{
	const TSubclassOf<UCoreTestObject> Class = UCoreTestChild::StaticClass();
	EXPECT_TRUE(Class == UCoreTestChild::StaticClass() && Class.GetDefaultObject() == GetDefault<UCoreTestChild>());
}

// Copyright The Tintmill authors. All rights reserved.
#include "PropertyResolver.h"

#include "Scratch.h"

#include <gtest/gtest.h>

namespace
{

/** Declares a property, its declaration in line 8, in a struct with an enum and a plain enum beside it. */
std::string Complain(const std::string& Declaration, const std::string& Words = "")
{
	return ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n\tUPROPERTY(" + Words + ")\n\t" + Declaration
		+ "\n};\nUENUM()\nenum EOld { EO_A };\nUENUM()\nenum class EUnsized { A };\n");
}

std::string GetUnrecognized(const std::string& Type)
{
	return Complaint(8, "Unrecognized type '" + Type + "' - type must be a UCLASS, USTRUCT or UENUM");
}

std::string GetInappropriate(const std::string& Type)
{
	return Complaint(8, "Inappropriate '*' on variable of type '" + Type + "', cannot have an exposed pointer to this type.");
}

}

TEST(FPropertyResolver, RefusesAnUnknownType)
{
	EXPECT_EQ(Complain("FNope X;"), GetUnrecognized("FNope"));
}

TEST(FPropertyResolver, RefusesAnUnknownTypeInAnArray)
{
	EXPECT_EQ(Complain("TArray<FNope> X;"), GetUnrecognized("FNope"));
}

TEST(FPropertyResolver, RefusesAnUnknownTemplate)
{
	EXPECT_EQ(Complain("TNope<int32> X;"), GetUnrecognized("TNope"));
}

TEST(FPropertyResolver, RefusesNumbersThatAreNotTheEngines)
{
	EXPECT_EQ(Complain("int X;"), GetUnrecognized("int"));
}

TEST(FPropertyResolver, RefusesAStaticMember)
{
	EXPECT_EQ(Complain("static int32 X;"), Complaint(8, "Missing ';' in variable definition"));
}

TEST(FPropertyResolver, RefusesAPointerToANumber)
{
	EXPECT_EQ(Complain("int32* X;"), GetInappropriate("int32"));
}

TEST(FPropertyResolver, RefusesAPointerToAStruct)
{
	EXPECT_EQ(Complain("FThing* X;"), GetInappropriate("FThing"));
}

TEST(FPropertyResolver, RefusesAPointerToAnArray)
{
	EXPECT_EQ(Complain("TArray<int32>* X;"), GetInappropriate("TArray"));
}

TEST(FPropertyResolver, RefusesAPointerToAPointer)
{
	EXPECT_EQ(Complain("UObject** X;"), GetInappropriate("UObject"));
}

TEST(FPropertyResolver, RefusesAnObjectByValue)
{
	EXPECT_EQ(Complain("UObject X;"), Complaint(8, "Missing '*' in Expected a pointer type"));
}

TEST(FPropertyResolver, RefusesAReference)
{
	EXPECT_EQ(Complain("int32& X;"), Complaint(8, "Missing variable name"));
}

TEST(FPropertyResolver, RefusesConstants)
{
	EXPECT_EQ(Complain("const int32 X;"), Complaint(8, "Const properties are not supported."));
}

TEST(FPropertyResolver, RefusesAnArrayOfArrays)
{
	EXPECT_EQ(Complain("TArray<TArray<int32>> X;"), Complaint(8, "Nested containers are not supported."));
}

TEST(FPropertyResolver, RefusesAFixedArrayOfArrays)
{
	EXPECT_EQ(Complain("TArray<int32> X[2];"), Complaint(8, "Static arrays of containers are not allowed"));
}

TEST(FPropertyResolver, RefusesAFixedArrayOfBooleans)
{
	EXPECT_EQ(Complain("bool X[2];"), Complaint(8, "Bool arrays are not allowed"));
}

TEST(FPropertyResolver, RefusesAClassReferenceToAStruct)
{
	EXPECT_EQ(Complain("TSubclassOf<FThing> X;"), GetUnrecognized("FThing"));
}

TEST(FPropertyResolver, RefusesAPlainEnumByItsName)
{
	EXPECT_EQ(Complain("EOld X;"),
		Complaint(8,
			"You cannot use the raw enum name as a type for member variables, instead use TEnumAsByte or a C++11 enum class with an "
			"explicit underlying type."));
}

TEST(FPropertyResolver, RefusesAnEnumClassWithoutUnderlyingType)
{
	EXPECT_EQ(Complain("EUnsized X;"),
		Complaint(8,
			"You cannot use the raw enum name as a type for member variables, instead use TEnumAsByte or a C++11 enum class with an "
			"explicit underlying type."));
}

TEST(FPropertyResolver, RefusesASignedBit)
{
	EXPECT_EQ(Complain("int32 X : 1;"), Complaint(8, "Bad or missing bit field size for 'X', must be 1."));
}

TEST(FPropertyResolver, RefusesMaps)
{
	EXPECT_EQ(Complain("TMap<FName, int32> X;"), Complaint(8, "Properties of type 'TMap' are not in this header tool"));
}

TEST(FPropertyResolver, RefusesSets)
{
	EXPECT_EQ(Complain("TSet<FName> X;"), Complaint(8, "Properties of type 'TSet' are not in this header tool"));
}

TEST(FPropertyResolver, RefusesSoftReferences)
{
	EXPECT_EQ(Complain("TSoftObjectPtr<UObject> X;"), Complaint(8, "Properties of type 'TSoftObjectPtr' are not in this header tool"));
}

TEST(FPropertyResolver, ReportsOneErrorAProperty)
{
	EXPECT_EQ(Complain("FNope* X;"), GetUnrecognized("FNope"));
}

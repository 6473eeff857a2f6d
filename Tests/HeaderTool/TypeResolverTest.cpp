// Copyright The Tintmill authors. All rights reserved.
#include "TypeResolver.h"

#include "Scratch.h"

#include <gtest/gtest.h>

TEST(FTypeResolver, RefusesAnUnknownBaseClass)
{
	EXPECT_EQ(ComplainAboutThing("UCLASS()\nclass UThing : public UNope { GENERATED_BODY() };\n"),
		Complaint(4,
			"Couldn't find parent type for 'UThing' named 'UNope' in current module (Package: /Script/Sample) or any other module parsed so far."));
}

TEST(FTypeResolver, RefusesAnUnknownBaseStruct)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FThing : public FNope { GENERATED_BODY() };\n"),
		Complaint(4, "'struct': Can't find 'FNope'"));
}

TEST(FTypeResolver, RefusesAClassWithoutBase)
{
	EXPECT_EQ(ComplainAboutThing("UCLASS()\nclass UThing { GENERATED_BODY() };\n"),
		Complaint(4, "Class 'UThing' must inherit UObject or a UObject-derived class"));
}

TEST(FTypeResolver, RefusesCircularInheritance)
{
	EXPECT_EQ(
		ComplainAboutThing("UCLASS()\nclass UA : public UB { GENERATED_BODY() };\nUCLASS()\nclass UB : public UA { GENERATED_BODY() };\n"),
		Complaint(6, "Circular inheritance: 'UB' is a base of its own base 'UA'"));
}

TEST(FTypeResolver, FindsABaseInALaterHeader)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("A.h", "#include \"A.generated.h\"\nUCLASS()\nclass UA : public UB { GENERATED_BODY() };\n");
	Scratch.AddHeader("B.h", "#include \"B.generated.h\"\nUCLASS(config=Game)\nclass UB : public UObject { GENERATED_BODY() };\n");
	Scratch.Run();
	EXPECT_NE(Scratch.ReadOutput("Sample", "A.gen.cpp").find("0x000000A4u"), std::string::npos);
}

TEST(FTypeResolver, RefusesConfigPropertiesInAClassWithoutConfig)
{
	EXPECT_EQ(ComplainAboutThing("UCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\n\tUPROPERTY(config)\n\tint32 X;\n};\n"),
		Complaint(4, "Classes with config / globalconfig member variables need to specify config file."));
}

TEST(FTypeResolver, AllowsConfigPropertiesInAStruct)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n\tUPROPERTY(config)\n\tint32 X;\n};\n"), "");
}

TEST(FTypeResolver, RefusesTheSamePropertyTwice)
{
	EXPECT_EQ(
		ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n\tUPROPERTY()\n\tint32 X;\n\tUPROPERTY()\n\tfloat x;\n};\n"),
		Complaint(10,
			"Member variable declaration: 'x' cannot be defined in 'Thing' as it is already defined in scope 'Thing' (shadowing is not allowed)"));
}

TEST(FTypeResolver, RefusesAPropertyThatShadowsOneOfABase)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FBase\n{\n\tGENERATED_BODY()\n\tUPROPERTY()\n\tint32 X;\n};\n"
								 "USTRUCT()\nstruct FThing : public FBase\n{\n\tGENERATED_BODY()\n\tUPROPERTY()\n\tint32 X;\n};\n"),
		Complaint(15,
			"Member variable declaration: 'X' cannot be defined in 'Thing' as it is already defined in scope 'Base' (shadowing is not allowed)"));
}

TEST(FTypeResolver, NotesADeclaredInitializerConstructor)
{
	EXPECT_NE(GenerateThing("UCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\n\tUThing(const FObjectInitializer& X);\n};\n",
				  "Thing.gen.cpp")
				  .find("{ \"ObjectInitializerConstructorDeclared\", \"\" },"),
		std::string::npos);
}

TEST(FTypeResolver, NotesNoInitializerConstructorForALegacyBody)
{
	EXPECT_EQ(GenerateThing("UCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_UCLASS_BODY()\n};\n", "Thing.gen.cpp")
				  .find("ObjectInitializerConstructorDeclared"),
		std::string::npos);
}

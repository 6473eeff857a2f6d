// Copyright The Tintmill authors. All rights reserved.
#include "HeaderParser.h"

#include "Scratch.h"

#include <gtest/gtest.h>

namespace
{

const char* const Class = "UCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\n};\n";
const char* const MissingInclude = "Expected an include at the top of the header: '#include \"Thing.generated.h\"'";
const char* const LateInclude =
	"#include found after .generated.h file - the .generated.h file should always be the last #include in a header";

/** Runs the tool on a Public/Thing.h that has just this text. */
std::string Complain(const std::string& Text)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Public/Thing.h", Text);
	Scratch.Run();
	return Scratch.GetComplaints();
}

}

TEST(FHeaderParser, AcceptsAClass)
{
	EXPECT_EQ(ComplainAboutThing(Class), "");
}

TEST(FHeaderParser, RefusesAHeaderWithoutItsGeneratedInclude)
{
	EXPECT_EQ(Complain(std::string("#pragma once\n\n") + Class), Complaint(3, MissingInclude));
}

TEST(FHeaderParser, RefusesAnotherHeadersGeneratedInclude)
{
	EXPECT_EQ(Complain(std::string("#pragma once\n#include \"Other.generated.h\"\n") + Class), Complaint(3, MissingInclude));
}

TEST(FHeaderParser, RefusesAGeneratedIncludeBelowTheClass)
{
	EXPECT_EQ(Complain(std::string(Class) + "#include \"Thing.generated.h\"\n"), Complaint(1, MissingInclude));
}

TEST(FHeaderParser, RefusesAnIncludeAfterTheGeneratedOne)
{
	EXPECT_EQ(ComplainAboutThing(std::string("\n#include <vector>\n") + Class), Complaint(4, LateInclude));
}

TEST(FHeaderParser, DoesNotTakeACommentedIncludeForOne)
{
	EXPECT_EQ(ComplainAboutThing(std::string("// #include <vector>\n/*\n#include <vector>\n*/\n") + Class), "");
}

TEST(FHeaderParser, RefusesAnUnterminatedComment)
{
	EXPECT_EQ(ComplainAboutThing(std::string(Class) + "/* open\n"), Complaint(8, "End of class header encountered inside comment"));
}

TEST(FHeaderParser, RefusesABodyThatNeverEnds)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n"), Complaint(7, "Unexpected end of file"));
}

TEST(FHeaderParser, RefusesAnUnreflectedBodyThatNeverEnds)
{
	EXPECT_EQ(ComplainAboutThing("struct FThing\n{\n"), Complaint(5, "Unexpected end of file"));
}

TEST(FHeaderParser, RefusesAPropertyOutsideOfAReflectedType)
{
	EXPECT_EQ(ComplainAboutThing("struct FThing\n{\n\tUPROPERTY()\n\tint32 X;\n};\n"),
		Complaint(5, "'UPROPERTY' is only allowed in a class or struct that is declared with UCLASS or USTRUCT"));
}

TEST(FHeaderParser, RefusesAReflectedTypeInANamespace)
{
	EXPECT_EQ(ComplainAboutThing("namespace A\n{\nUSTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n};\n}\n"),
		Complaint(5, "'USTRUCT' must not be inside a namespace or another class"));
}

TEST(FHeaderParser, RefusesInterfaces)
{
	EXPECT_EQ(ComplainAboutThing("UINTERFACE()\nclass UThing : public UInterface {};\n"),
		Complaint(3, "'UINTERFACE' is not in this header tool"));
}

TEST(FHeaderParser, RefusesDynamicDelegates)
{
	EXPECT_EQ(ComplainAboutThing("DECLARE_DYNAMIC_MULTICAST_DELEGATE(FThingEvent);\n"),
		Complaint(3, "'DECLARE_DYNAMIC_MULTICAST_DELEGATE' is not in this header tool"));
}

TEST(FHeaderParser, RefusesATypeForTheEditorAlone)
{
	EXPECT_EQ(ComplainAboutThing("#if WITH_EDITORONLY_DATA\nUSTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n};\n#endif\n"),
		Complaint(4, "'USTRUCT' inside WITH_EDITORONLY_DATA is not in this header tool"));
}

TEST(FHeaderParser, SkipsEverythingThatIsNotReflected)
{
	EXPECT_EQ(ComplainAboutThing(std::string("namespace N { template <class T> struct TX { int UPROPERTY; char C = '}'; }; }\n"
											 "#define BODY(x) { x\nstatic const char* Text = \"UCLASS( {\";\n")
				  + Class),
		"");
}

TEST(FHeaderParser, ReportsTheErrorsOfAllTypes)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT(\nstruct FOne { };\nUSTRUCT()\nclass FTwo { };\n"),
		Complaint(4, "Missing ')' in USTRUCT declaration") + Complaint(6, "Missing 'struct' in struct declaration"));
}

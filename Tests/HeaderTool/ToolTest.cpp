// Copyright The Tintmill authors. All rights reserved.
#include "Tool.h"

#include "Scratch.h"

#include <fstream>
#include <gtest/gtest.h>
#include <random>

namespace
{

const char* const Pieces[] = {"UCLASS(", "USTRUCT()", "UENUM()", "UPROPERTY(", "GENERATED_BODY()", "class ", "struct FX ", "enum class E ",
	"{", "}", "(", ")", "<", ">", "[", "]", ";", ":", ",", "=", "\n", "\"", "'", "/*", "*/", "//", "#if 0\n", "\n#endif\n", "\\\n", "R\"(",
	"meta=(", "int32 ", "TArray<", "public", "UX ", "UObject", "\0", "\xFF", "UMETA(", "#", "1'"};

const std::string GoodHeader =
	"#pragma once\n"
	"#include \"Thing.generated.h\"\n"
	"/** A kind. */\nUENUM()\nenum class EKind : uint8 { A UMETA(DisplayName = \"a\"), B = 1 << 2 };\n"
	"USTRUCT()\nstruct SAMPLE_API FPair\n{\n\tGENERATED_BODY()\n\n\t/* Name */\n\tUPROPERTY(config)\n\tFName Name = \"x\";\n};\n"
	"UCLASS(config = Game, hidecategories = (Object), meta = (A = \"b\"))\n"
	"class UThing : public UObject, public FOther<int>\n{\n\tGENERATED_BODY()\n\n"
	"public:\n\tUThing(const FObjectInitializer& X) : Y{1} { }\n"
	"#if WITH_EDITORONLY_DATA\n\tUPROPERTY(EditAnywhere, Category = \"C\")\n\tTArray<FPair> Pairs;\n#endif\n"
	"private:\n\tUPROPERTY()\n\tTSubclassOf<UThing> Class[3];\n};\n";

std::string GetSnapshot(const FScratch& Scratch)
{
	return Scratch.ReadOutput("Sample", "Thing.generated.h") + Scratch.ReadOutput("Sample", "Thing.gen.cpp")
		+ Scratch.ReadOutput("Sample", "Sample.init.gen.cpp");
}

/** Runs the tool on a Thing.h with this text; returns whether it ended as it should: all well, or with a complaint and code 1. */
bool EndsProperly(FScratch& Scratch, const std::string& Text)
{
	std::ofstream(Scratch.GetRoot() / "Sample" / "Thing.h", std::ios::binary) << Text;
	const int Code = Scratch.Run();
	return Code == 0 ? Scratch.GetComplaints().empty() : Code == 1 && Scratch.GetComplaints().find("Sample/Thing.h(") == 0;
}

}

TEST(FTool, ReturnsZeroWhenAllIsWell)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", GoodHeader);
	EXPECT_EQ(Scratch.Run(), 0);
}

TEST(FTool, ReturnsOneWhenThereAreComplaints)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", "nothing");
	EXPECT_EQ(Scratch.Run(), 1);
}

TEST(FTool, WritesNothingWhenThereAreComplaints)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", GoodHeader);
	Scratch.AddHeader("Other.h", "nothing");
	Scratch.Run();
	EXPECT_FALSE(std::filesystem::exists(Scratch.GetRoot() / "Out"));
}

TEST(FTool, ReportsTheErrorsOfAllHeaders)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("A.h", "#include \"A.generated.h\"\nUCLASS()\nclass A : public UObject { GENERATED_BODY() };\n");
	Scratch.AddHeader("B.h", "#include \"B.generated.h\"\nUSTRUCT()\nstruct FB { };\n");
	Scratch.Run();
	EXPECT_EQ(Scratch.GetComplaints(),
		"Sample/B.h(3): error: Expected a GENERATED_BODY() at the start of struct\n"
		"Sample/A.h(3): error: Class 'A' has an invalid Unreal prefix, expecting 'UA'\n");
}

TEST(FTool, RefusesTwoHeadersOfOneNameEvenInDifferentModules)
{
	FScratch Scratch;
	Scratch.AddModule("Base", "EngineRuntime");
	Scratch.AddHeader("Public/Thing.h", "#include \"Thing.generated.h\"\n");
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Public/Thing.h", "#include \"Thing.generated.h\"\n");
	Scratch.Run();
	EXPECT_EQ(
		Scratch.GetComplaints(), Complaint(1, "Duplicate leaf header name found: Sample/Public/Thing.h (original: Base/Public/Thing.h)"));
}

TEST(FTool, RefusesAHeaderThatIsNotThere)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.ListHeader("Public/Thing.h");
	Scratch.Run();
	EXPECT_EQ(Scratch.GetComplaints(), Complaint(1, "The header cannot be read"));
}

TEST(FTool, RefusesAHeaderOutsideOfItsModule)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("../Thing.h", GoodHeader);
	Scratch.Run();
	EXPECT_NE(Scratch.GetComplaints().find("Thing.h(1): error: The header is not in the folder of its module '"), std::string::npos);
}

TEST(FTool, RefusesAnotherEncoding)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Public/Thing.h", std::string("\xFF\xFE#\0", 4));
	Scratch.Run();
	EXPECT_EQ(Scratch.GetComplaints(), Complaint(1, "The header is in UTF-16; save it in UTF-8"));
}

TEST(FTool, ReportsAnOutputFolderThatCannotBeWritten)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", GoodHeader);
	std::ofstream(Scratch.GetRoot() / "Out") << "a file";
	EXPECT_EQ(Scratch.Run(), 1);
}

TEST(FTool, WritesTheSameTextInEveryRun)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", GoodHeader);
	Scratch.Run();
	const std::string First = GetSnapshot(Scratch);
	std::filesystem::remove_all(Scratch.GetRoot() / "Out");
	Scratch.Run();
	EXPECT_EQ(GetSnapshot(Scratch), First);
}

TEST(FTool, DoesNotTouchOutputsThatStayTheSame)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", GoodHeader);
	Scratch.Run();
	const std::filesystem::path File = Scratch.GetOutput("Sample", "Thing.gen.cpp");
	const std::filesystem::file_time_type Old = std::filesystem::last_write_time(File) - std::chrono::hours(1);
	std::filesystem::last_write_time(File, Old);
	Scratch.Run();
	EXPECT_EQ(std::filesystem::last_write_time(File), Old);
}

TEST(FTool, WritesNothingForAModuleWithoutHeaders)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.Run();
	EXPECT_FALSE(std::filesystem::exists(Scratch.GetOutput("Sample", "Sample.init.gen.cpp")));
}

TEST(FTool, GivesRuntimePackagesNoEditorFlag)
{
	EXPECT_NE(GenerateThing("", "Sample.init.gen.cpp").find("PKG_CompiledIn | 0x00000000,"), std::string::npos);
}

TEST(FTool, EndsProperlyOnEveryTruncationOfAHeader)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", "");
	for (std::size_t Length = 0; Length < GoodHeader.size(); ++Length)
	{
		ASSERT_TRUE(EndsProperly(Scratch, GoodHeader.substr(0, Length))) << GoodHeader.substr(0, Length);
	}
}

TEST(FTool, EndsProperlyWithAnyCharacterMissing)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", "");
	for (std::size_t At = 0; At < GoodHeader.size(); ++At)
	{
		std::string Text = GoodHeader;
		ASSERT_TRUE(EndsProperly(Scratch, Text.erase(At, 1))) << Text;
	}
}

TEST(FTool, EndsProperlyOnHeadersThatAreShuffled)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", "");
	std::mt19937 Random(20);
	for (int Round = 0; Round < 2000; ++Round)
	{
		std::string Text =
			Round % 2 == 0 ? "" : "#include \"Thing.generated.h\"\nUCLASS()\nclass UX : public UObject\n{\n\tGENERATED_BODY()\n";
		for (unsigned Count = Random() % 60; Count > 0; --Count)
		{
			Text += Pieces[Random() % std::size(Pieces)];
		}
		ASSERT_TRUE(EndsProperly(Scratch, Text)) << Text;
	}
}

TEST(FTool, EndsProperlyOnLongRepetitions)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Thing.h", "");
	for (const char* Piece : Pieces)
	{
		std::string Text = "#include \"Thing.generated.h\"\nUSTRUCT()\nstruct FX\n{\n\tGENERATED_BODY()\n";
		for (int Count = 0; Count < 20000; ++Count)
		{
			Text += Piece;
		}
		ASSERT_TRUE(EndsProperly(Scratch, Text)) << Piece;
	}
}

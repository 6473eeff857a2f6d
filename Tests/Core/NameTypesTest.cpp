// Copyright The Tintmill authors. All rights reserved.

#include "UObject/NameTypes.h"

#include "Containers/Map.h"
#include "Support/Printers.h"
#include "gtest/gtest.h"
#include <thread>
#include <type_traits>
#include <vector>

TEST(FName, IsTwelveBytesAndCopiedAsBytes)
{
	EXPECT_EQ(12u, sizeof(FName));
	EXPECT_TRUE(std::is_trivially_copyable<FName>::value);
}

TEST(FName, ComparesWithoutCase)
{
	EXPECT_EQ(FName(TEXT("Intensity")), FName(TEXT("iNTENSITY")));
	EXPECT_EQ(GetTypeHash(FName(TEXT("Intensity"))), GetTypeHash(FName(TEXT("iNTENSITY"))));
	EXPECT_NE(FName(TEXT("Intensity")), FName(TEXT("Density")));
}

TEST(FName, RemembersTheSpellingItWasMadeWith)
{
	const FName First(TEXT("SpellingTest"));
	const FName Second(TEXT("spellingTEST"));
	EXPECT_EQ("SpellingTest", ToStd(First.ToString()));
	EXPECT_EQ("spellingTEST", ToStd(Second.ToString()));
	EXPECT_EQ("SpellingTest", ToStd(FName(TEXT("SpellingTest")).ToString()));
}

TEST(FName, ComparesWithCaseWhereAsked)
{
	const FName First(TEXT("CaseTest"));
	const FName Second(TEXT("casetest"));
	EXPECT_TRUE(First.IsEqual(Second));
	EXPECT_FALSE(First.IsEqual(Second, ENameCase::CaseSensitive));
	EXPECT_TRUE(FName(TEXT("CaseTest_1")).IsEqual(First, ENameCase::IgnoreCase, false));
}

TEST(FName, DefaultNullEmptyAndNoneAreTheNameNone)
{
	EXPECT_EQ(NAME_None, FName());
	EXPECT_EQ(FName(), FName((const TCHAR*)nullptr));
	EXPECT_EQ(FName(), FName((const ANSICHAR*)nullptr));
	EXPECT_EQ(FName(), FName(TEXT("")));
	EXPECT_EQ(FName(), FName(""));
	EXPECT_EQ(NAME_None, FName("none"));
	EXPECT_TRUE(FName(NAME_None).IsNone());
	EXPECT_EQ("None", ToStd(FName().ToString()));
}

TEST(FName, KeepsTheNumberSuffixApartFromThePlainName)
{
	const FName Name(TEXT("Viewport_12"));
	EXPECT_EQ(13, Name.GetNumber());
	EXPECT_EQ("Viewport", ToStd(Name.GetPlainNameString()));
	EXPECT_EQ("Viewport_12", ToStd(Name.ToString()));
	EXPECT_EQ(FName(FName(TEXT("Viewport")), 13), Name);
	EXPECT_NE(FName(TEXT("Viewport")), Name);
}

TEST(FName, ZeroIsANumberButLeadingZerosAreNot)
{
	EXPECT_EQ(1, FName(TEXT("A_0")).GetNumber());
	EXPECT_EQ(0, FName(TEXT("A_01")).GetNumber());
	EXPECT_EQ(0, FName(TEXT("A_00")).GetNumber());
	EXPECT_EQ("A_01", ToStd(FName(TEXT("A_01")).ToString()));
}

TEST(FName, OnlyDigitsAfterAnUnderscoreAreANumber)
{
	EXPECT_EQ(0, FName(TEXT("A1")).GetNumber());
	EXPECT_EQ(0, FName(TEXT("A_")).GetNumber());
	EXPECT_EQ(0, FName(TEXT("A_1b")).GetNumber());
	EXPECT_EQ(0, FName(TEXT("12")).GetNumber());
	EXPECT_EQ("A_1", ToStd(FName(TEXT("A_1_2")).GetPlainNameString()));
}

TEST(FName, NumbersTooLargeForAnIntStayInTheText)
{
	EXPECT_EQ(MAX_int32, FName(TEXT("A_2147483646")).GetNumber());
	EXPECT_EQ(0, FName(TEXT("A_2147483647")).GetNumber());
	EXPECT_EQ(0, FName(TEXT("A_99999999999")).GetNumber());
	EXPECT_EQ("A_2147483647", ToStd(FName(TEXT("A_2147483647")).ToString()));
}

TEST(FName, FindDoesNotAddANameThatIsNotThere)
{
	EXPECT_EQ(NAME_None, FName(TEXT("NobodyEverSaidThis"), FNAME_Find));
	EXPECT_EQ(NAME_None, FName(TEXT("NobodyEverSaidThis"), FNAME_Find));
	const FName Added(TEXT("SomebodySaidThis"));
	EXPECT_EQ(Added, FName(TEXT("somebodysaidthis"), FNAME_Find));
}

TEST(FName, OrdersByTextThenNumber)
{
	EXPECT_TRUE(FName(TEXT("Alpha")).LexicalLess(FName(TEXT("beta"))));
	EXPECT_TRUE(FName(TEXT("Alpha_2")).LexicalLess(FName(TEXT("alpha_10"))));
	EXPECT_EQ(0, FName(TEXT("Alpha")).Compare(FName(TEXT("ALPHA"))));
}

TEST(FName, MadeFromAPartOfAText)
{
	EXPECT_EQ(FName(TEXT("Part")), FName(4, TEXT("PartOfMore")));
	EXPECT_EQ(FName(TEXT("Part")), FName(4, "PartOfMore"));
}

TEST(FName, ImplicitFromLiterals)
{
	const FName Wide = TEXT("Literal");
	const FName Narrow = "Literal";
	EXPECT_EQ(Wide, Narrow);
}

TEST(FName, HardcodedNamesEqualTheirTexts)
{
	EXPECT_EQ(FName(NAME_BoolProperty), FName(TEXT("BoolProperty")));
	EXPECT_TRUE(FName(TEXT("StrProperty")) == NAME_StrProperty);
}

TEST(FNameDeathTest, TextsLongerThanANameAreFatal)
{
	EXPECT_EQ(1023, FName(*FString::ChrN(1023, TEXT('x'))).ToString().Len());
	EXPECT_DEATH(FName(*FString::ChrN(1024, TEXT('x'))), "FName's 1023 max length exceeded");
}

TEST(FName, SeveralThreadsAgreeOnNames)
{
	std::vector<std::thread> Threads;
	std::vector<std::vector<FName>> Names(4);
	for (std::size_t Thread = 0; Thread < Names.size(); ++Thread)
	{
		Threads.emplace_back([&Names, Thread] {
			for (int32 Number = 0; Number < 500; ++Number)
			{
				Names[Thread].push_back(FName(*FString::Printf(TEXT("Threaded%d"), Number)));
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	for (std::size_t Thread = 1; Thread < Names.size(); ++Thread)
	{
		EXPECT_EQ(Names[0], Names[Thread]);
	}
}

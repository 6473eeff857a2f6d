// Copyright The Tintmill authors. All rights reserved.

#include "Misc/DateTime.h"

#include "Misc/Guid.h"
#include "Support/Printers.h"
#include "gtest/gtest.h"

TEST(FDateTime, PartsComeBackOut)
{
	const FDateTime Date(2021, 8, 1, 10, 20, 30, 405);
	EXPECT_EQ(2021, Date.GetYear());
	EXPECT_EQ(8, Date.GetMonth());
	EXPECT_EQ(1, Date.GetDay());
	EXPECT_EQ("2021.08.01-10.20.30", ToStd(Date.ToString()));
	EXPECT_EQ("2021-08-01T10:20:30.405Z", ToStd(Date.ToIso8601()));
}

TEST(FDateTime, EveryDayOfFourCenturiesHasItsDate)
{
	FDateTime Date(1800, 1, 1);
	const FDateTime End(2200, 1, 1);
	int32 Year = 1800;
	int32 Month = 1;
	int32 Day = 1;
	while (Date < End)
	{
		int32 FoundYear = 0;
		int32 FoundMonth = 0;
		int32 FoundDay = 0;
		Date.GetDate(FoundYear, FoundMonth, FoundDay);
		ASSERT_TRUE(Year == FoundYear && Month == FoundMonth && Day == FoundDay);
		Date = Date + FTimespan(24, 0, 0);
		if (++Day > FDateTime::DaysInMonth(Year, Month))
		{
			Day = 1;
			Year += Month == 12 ? 1 : 0;
			Month = Month % 12 + 1;
		}
	}
	EXPECT_EQ(2200, Year);
}

TEST(FDateTime, UnixTimeStartsIn1970)
{
	EXPECT_EQ(0, FDateTime(1970, 1, 1).ToUnixTimestamp());
	EXPECT_EQ(FDateTime(2000, 1, 1), FDateTime::FromUnixTimestamp(946684800));
}

TEST(FDateTimeDeathTest, ImpossibleDatesAreFatal)
{
	EXPECT_DEATH(FDateTime(2021, 2, 29), "Created invalid date format");
}

TEST(FTimespan, CountsSeconds)
{
	EXPECT_DOUBLE_EQ(5400.0, (FDateTime(2021, 1, 1, 1, 30) - FDateTime(2021, 1, 1)).GetTotalSeconds());
	EXPECT_EQ(FTimespan(0, 0, 2), FTimespan::FromSeconds(2.0));
}

TEST(FGuid, IsFreshEachTimeAndReadBackFromItsText)
{
	const FGuid Guid = FGuid::NewGuid();
	EXPECT_TRUE(Guid.IsValid());
	EXPECT_NE(Guid, FGuid::NewGuid());
	FGuid Parsed;
	EXPECT_TRUE(FGuid::Parse(Guid.ToString(), Parsed));
	EXPECT_EQ(Guid, Parsed);
	EXPECT_FALSE(FGuid::Parse(TEXT("not one"), Parsed));
	EXPECT_FALSE(FGuid().IsValid());
}

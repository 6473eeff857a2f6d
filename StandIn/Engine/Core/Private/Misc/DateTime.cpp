// Copyright The Tintmill authors. All rights reserved.

#include "Misc/DateTime.h"

#include <chrono>
#include <ctime>

namespace
{
const int64 UnixEpochTicks = 621355968000000000;

/** Days before a year, counted from the year 1. */
int64 DaysBeforeYear(int32 Year)
{
	const int64 Years = Year - 1;
	return Years * 365 + Years / 4 - Years / 100 + Years / 400;
}
}

bool FDateTime::IsLeapYear(int32 Year)
{
	return Year % 4 == 0 && (Year % 100 != 0 || Year % 400 == 0);
}

int32 FDateTime::DaysInMonth(int32 Year, int32 Month)
{
	check((Month >= 1) && (Month <= 12));
	static const int32 Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
	return Month == 2 && IsLeapYear(Year) ? 29 : Days[Month - 1];
}

FDateTime::FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	checkf(Year >= 1 && Year <= 9999 && Month >= 1 && Month <= 12 && Day >= 1 && Day <= DaysInMonth(Year, Month) && Hour >= 0 && Hour <= 23
			&& Minute >= 0 && Minute <= 59 && Second >= 0 && Second <= 59 && Millisecond >= 0 && Millisecond <= 999,
		TEXT("Created invalid date format: %d-%d-%d %d:%d:%d.%d"), Year, Month, Day, Hour, Minute, Second, Millisecond);
	int64 TotalDays = DaysBeforeYear(Year) + Day - 1;
	for (int32 Earlier = 1; Earlier < Month; ++Earlier)
	{
		TotalDays += DaysInMonth(Year, Earlier);
	}
	Ticks = TotalDays * ETimespan::TicksPerDay + Hour * ETimespan::TicksPerHour + Minute * ETimespan::TicksPerMinute
		+ Second * ETimespan::TicksPerSecond + Millisecond * ETimespan::TicksPerMillisecond;
}

void FDateTime::GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const
{
	const int64 TotalDays = Ticks / ETimespan::TicksPerDay;
	OutYear = (int32)(TotalDays / 366) + 1;
	while (DaysBeforeYear(OutYear + 1) <= TotalDays)
	{
		++OutYear;
	}
	int32 DayOfYear = (int32)(TotalDays - DaysBeforeYear(OutYear));
	OutMonth = 1;
	while (DayOfYear >= DaysInMonth(OutYear, OutMonth))
	{
		DayOfYear -= DaysInMonth(OutYear, OutMonth);
		++OutMonth;
	}
	OutDay = DayOfYear + 1;
}

int32 FDateTime::GetYear() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Year;
}

int32 FDateTime::GetMonth() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Month;
}

int32 FDateTime::GetDay() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Day;
}

FString FDateTime::ToString(const TCHAR* Format) const
{
	FString Result;
	for (; *Format != 0; ++Format)
	{
		if (*Format != '%' || Format[1] == 0)
		{
			Result.AppendChar(*Format);
			continue;
		}
		++Format;
		switch (*Format)
		{
		case 'Y':
			Result += FString::Printf(TEXT("%04i"), GetYear());
			break;
		case 'y':
			Result += FString::Printf(TEXT("%02i"), GetYear() % 100);
			break;
		case 'm':
			Result += FString::Printf(TEXT("%02i"), GetMonth());
			break;
		case 'd':
			Result += FString::Printf(TEXT("%02i"), GetDay());
			break;
		case 'H':
			Result += FString::Printf(TEXT("%02i"), GetHour());
			break;
		case 'M':
			Result += FString::Printf(TEXT("%02i"), GetMinute());
			break;
		case 'S':
			Result += FString::Printf(TEXT("%02i"), GetSecond());
			break;
		case 's':
			Result += FString::Printf(TEXT("%03i"), GetMillisecond());
			break;
		default:
			Result.AppendChar(*Format);
		}
	}
	return Result;
}

FString FDateTime::ToString() const
{
	return ToString(TEXT("%Y.%m.%d-%H.%M.%S"));
}

FString FDateTime::ToIso8601() const
{
	return ToString(TEXT("%Y-%m-%dT%H:%M:%S.%sZ"));
}

int64 FDateTime::ToUnixTimestamp() const
{
	return (Ticks - UnixEpochTicks) / ETimespan::TicksPerSecond;
}

FDateTime FDateTime::FromUnixTimestamp(int64 UnixTime)
{
	return FDateTime(UnixEpochTicks + UnixTime * ETimespan::TicksPerSecond);
}

FDateTime FDateTime::UtcNow()
{
	const auto SinceEpoch = std::chrono::system_clock::now().time_since_epoch();
	const int64 Microseconds = std::chrono::duration_cast<std::chrono::microseconds>(SinceEpoch).count();
	return FDateTime(UnixEpochTicks + Microseconds * ETimespan::TicksPerMicrosecond);
}

FDateTime FDateTime::Now()
{
	const FDateTime Utc = UtcNow();
	const std::time_t Seconds = (std::time_t)Utc.ToUnixTimestamp();
	const std::tm* const Local = std::localtime(&Seconds);
	return Local == nullptr ? Utc
							: FDateTime(Local->tm_year + 1900, Local->tm_mon + 1, Local->tm_mday, Local->tm_hour, Local->tm_min,
								Local->tm_sec < 60 ? Local->tm_sec : 59, Utc.GetMillisecond());
}

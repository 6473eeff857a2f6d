// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Misc/Timespan.h"
#include "Containers/UnrealString.h"

// Dates of the Gregorian calendar with the time of day, in ticks since the year 1. Only what logs and file times need.

/** A date and time without a time zone. */
struct CORE_API FDateTime
{
	/** The first moment of the year 1. */
	FDateTime() {}

	/** From ticks of 100 nanoseconds since the year 1. */
	explicit FDateTime(int64 InTicks)
		: Ticks(InTicks)
	{}

	/** From its parts; parts out of range are fatal. */
	FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	/** Ticks of 100 nanoseconds since the year 1. */
	int64 GetTicks() const { return Ticks; }

	/** Year, month (1 to 12) and day (1 to 31). */
	void GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const;

	/** Year. */
	int32 GetYear() const;
	/** Month, 1 to 12. */
	int32 GetMonth() const;
	/** Day of the month, 1 to 31. */
	int32 GetDay() const;
	/** Hour, 0 to 23. */
	int32 GetHour() const { return (int32)(Ticks / ETimespan::TicksPerHour % 24); }
	/** Minute, 0 to 59. */
	int32 GetMinute() const { return (int32)(Ticks / ETimespan::TicksPerMinute % 60); }
	/** Second, 0 to 59. */
	int32 GetSecond() const { return (int32)(Ticks / ETimespan::TicksPerSecond % 60); }
	/** Millisecond, 0 to 999. */
	int32 GetMillisecond() const { return (int32)(Ticks / ETimespan::TicksPerMillisecond % 1000); }

	/** Text with the format's parts filled in: %Y %y %m %d %H %M %S %s (milliseconds). */
	FString ToString(const TCHAR* Format) const;

	/** Text of the form 2021.08.01-10.00.00. */
	FString ToString() const;

	/** Text of the form 2021-08-01T10:00:00.000Z. */
	FString ToIso8601() const;

	/** Seconds since 1970. */
	int64 ToUnixTimestamp() const;

	/** From seconds since 1970. */
	static FDateTime FromUnixTimestamp(int64 UnixTime);

	/** Now, in local time. */
	static FDateTime Now();

	/** Now, in universal time. */
	static FDateTime UtcNow();

	/** The first date that can be held. */
	static FDateTime MinValue() { return FDateTime(0); }

	/** Days of a month. */
	static int32 DaysInMonth(int32 Year, int32 Month);

	/** Whether a year has 366 days. */
	static bool IsLeapYear(int32 Year);

	/** Equal moments. */
	bool operator==(const FDateTime& Other) const { return Ticks == Other.Ticks; }
	/** Different moments. */
	bool operator!=(const FDateTime& Other) const { return Ticks != Other.Ticks; }
	/** Earlier. */
	bool operator<(const FDateTime& Other) const { return Ticks < Other.Ticks; }
	/** Later. */
	bool operator>(const FDateTime& Other) const { return Ticks > Other.Ticks; }
	/** Not later. */
	bool operator<=(const FDateTime& Other) const { return Ticks <= Other.Ticks; }
	/** Not earlier. */
	bool operator>=(const FDateTime& Other) const { return Ticks >= Other.Ticks; }
	/** Time between. */
	FTimespan operator-(const FDateTime& Other) const { return FTimespan(Ticks - Other.Ticks); }
	/** Moved by a length of time. */
	FDateTime operator+(const FTimespan& Other) const { return FDateTime(Ticks + Other.GetTicks()); }

private:
	int64 Ticks = 0;
};

/** Hash of a moment. */
inline uint32 GetTypeHash(const FDateTime& DateTime)
{
	return GetTypeHash(DateTime.GetTicks());
}

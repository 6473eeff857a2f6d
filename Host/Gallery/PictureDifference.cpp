// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/PictureDifference.h"

#include <algorithm>
#include <cstring>

namespace TintmillHost
{
namespace
{
/** A band of equal rows or columns parts two areas if it is at least so wide, in pixels. */
constexpr int32 MinBand = 32;

/** Areas are parted so often at most. */
constexpr int MaxDepth = 5;

/** Says which pixels differ. */
class FDifference
{
public:
	FDifference(const FPicture& A, const FPicture& B)
		: Width(A.Width)
		, Differs(static_cast<size_t>(A.Width) * A.Height)
	{
		for (int32 Row = 0; Row < A.Height; ++Row)
		{
			const size_t Start = static_cast<size_t>(Row) * Width;
			const FColor* const RowA = A.Pixels.GetData() + Start;
			const FColor* const RowB = B.Pixels.GetData() + Start;
			if (std::memcmp(RowA, RowB, static_cast<size_t>(Width) * sizeof(FColor)) != 0)
			{
				for (int32 Column = 0; Column < Width; ++Column)
				{
					const FColor& ColorA = RowA[Column];
					const FColor& ColorB = RowB[Column];
					Differs[Start + Column] = ColorA.R != ColorB.R || ColorA.G != ColorB.G || ColorA.B != ColorB.B;
				}
			}
		}
	}

	/** Parts an area into OutAreas. */
	void Split(const FIntRect& Area, int Depth, std::vector<FIntRect>& OutAreas) const
	{
		std::vector<char> Rows(static_cast<size_t>(Area.Height()));
		std::vector<char> Columns(static_cast<size_t>(Area.Width()));
		for (int32 Y = Area.Min.Y; Y < Area.Max.Y; ++Y)
		{
			for (int32 X = Area.Min.X; X < Area.Max.X; ++X)
			{
				if (Differs[static_cast<size_t>(Y) * Width + X])
				{
					Rows[Y - Area.Min.Y] = 1;
					Columns[X - Area.Min.X] = 1;
				}
			}
		}
		const FRange UsedRows = FindUsed(Rows);
		if (UsedRows.Start == UsedRows.End)
		{
			return;
		}
		const FRange UsedColumns = FindUsed(Columns);
		const FRange RowBand = FindBand(Rows, UsedRows);
		const FRange ColumnBand = FindBand(Columns, UsedColumns);
		const FIntRect Used(
			Area.Min.X + UsedColumns.Start, Area.Min.Y + UsedRows.Start, Area.Min.X + UsedColumns.End, Area.Min.Y + UsedRows.End);
		const bool bByRows = RowBand.Length() * Used.Width() >= ColumnBand.Length() * Used.Height();
		const FRange Band = bByRows ? RowBand : ColumnBand;
		if (Depth == 0 || Band.Length() < MinBand)
		{
			OutAreas.push_back(Used);
			return;
		}
		FIntRect First = Used;
		FIntRect Second = Used;
		(bByRows ? First.Max.Y : First.Max.X) = (bByRows ? Area.Min.Y : Area.Min.X) + Band.Start;
		(bByRows ? Second.Min.Y : Second.Min.X) = (bByRows ? Area.Min.Y : Area.Min.X) + Band.End;
		Split(First, Depth - 1, OutAreas);
		Split(Second, Depth - 1, OutAreas);
	}

private:
	/** Rows or columns from Start on, without End. */
	struct FRange
	{
		int32 Start = 0;
		int32 End = 0;

		int32 Length() const { return End - Start; }
	};

	static FRange FindUsed(const std::vector<char>& Marks)
	{
		const auto First = std::find(Marks.begin(), Marks.end(), 1);
		const auto Last = std::find(Marks.rbegin(), Marks.rend(), 1);
		return First == Marks.end() ? FRange() : FRange{static_cast<int32>(First - Marks.begin()), static_cast<int32>(Marks.rend() - Last)};
	}

	/** The widest range without a mark within a range. */
	static FRange FindBand(const std::vector<char>& Marks, const FRange& Within)
	{
		FRange Widest;
		int32 Start = Within.Start;
		for (int32 Index = Within.Start; Index < Within.End; ++Index)
		{
			if (Marks[Index])
			{
				Start = Index + 1;
			}
			else if (Index + 1 - Start > Widest.Length())
			{
				Widest = {Start, Index + 1};
			}
		}
		return Widest;
	}

	int32 Width;
	std::vector<char> Differs;
};
}

std::vector<FIntRect> FindDifferences(const FPicture& A, const FPicture& B)
{
	std::vector<FIntRect> Areas;
	FDifference(A, B).Split(FIntRect(0, 0, A.Width, A.Height), MaxDepth, Areas);
	return Areas;
}
}

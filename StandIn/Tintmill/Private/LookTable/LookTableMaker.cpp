// Copyright The Tintmill authors. All rights reserved.

#include "LookTable/LookTableGrader.h"

namespace LookTableMakerPrivate
{
/** Makes graders from .cube files without the help of a library; faster than the general way, which stays for all other formats. */
class FLookTableMaker final : public LookGrading::ILookGraderMaker
{
public:
	FLookTableMaker()
		: ILookGraderMaker(LookGrading::TableRank)
	{}

	virtual bool CanMake(const LookFile::FCheckedFile& File) const override { return File.Cube.Size1D != 0 || File.Cube.Size3D != 0; }

	virtual std::shared_ptr<const LookGrading::ILookGrader> Make(const LookFile::FCheckedFile& File, std::string&) const override
	{
		if (File.Cube.Size3D != 0)
		{
			return std::make_shared<LookTable::FLookTableGrader>(File.Cube);
		}
		return std::make_shared<LookTable::FLookCurveGrader>(File.Cube);
	}
};

static const FLookTableMaker Maker;
}

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Tintmill/Private/LookGrader.h"

namespace TintmillTest
{
/** Turns colors into their opposites. */
class FInvertingGrader final : public LookGrading::ILookGrader
{
public:
	virtual void Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, LookGrading::EByteOrder) const override
	{
		for (std::size_t Byte = 0; Byte < PixelCount * 4; ++Byte)
		{
			Out[Byte] = Byte % 4 == 3 ? In[Byte] : static_cast<std::uint8_t>(255 - In[Byte]);
		}
	}
};
}

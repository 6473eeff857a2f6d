// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneContent.h"

namespace TintmillHost
{
namespace SceneContentPrivate
{
/** One figure: a rounded body, a head and hair; facing the camera's side. */
static void AddFigure(std::vector<FSceneShape>& Shapes, FSceneVector Foot, float Size, const FSceneVector& Cloth, const FSceneVector& Skin,
	const FSceneVector& Hair, float FacingDegrees)
{
	const float Facing = FacingDegrees * 0.01745329252f;
	const FSceneVector Front = {-std::cos(Facing), -std::sin(Facing), 0.0f};
	const int Owner = static_cast<int>(Shapes.size()) + 1;
	FSceneShape Body;
	Body.Kind = ESceneShape::Capsule;
	Body.Material = ESceneMaterial::Cloth;
	Body.Owner = Owner;
	Body.A = Foot + FSceneVector{0.0f, 0.0f, 0.36f * Size};
	Body.B = Foot + FSceneVector{0.0f, 0.0f, 0.80f * Size};
	Body.Radius = 0.36f * Size;
	Body.Color = Cloth;
	Shapes.push_back(Body);

	FSceneShape Head;
	Head.Material = ESceneMaterial::Head;
	Head.Owner = Owner + 1;
	Head.A = Foot + FSceneVector{0.0f, 0.0f, 1.40f * Size};
	Head.B = Front;
	Head.Radius = 0.34f * Size;
	Head.Color = Skin;
	Shapes.push_back(Head);

	FSceneShape Cap = Head;
	Cap.Kind = ESceneShape::HairCap;
	Cap.Material = ESceneMaterial::Hair;
	Cap.Radius = 0.368f * Size;
	Cap.Color = Hair;
	Shapes.push_back(Cap);
}

static void AddBall(std::vector<FSceneShape>& Shapes, FSceneVector Center, float Radius, ESceneMaterial Material, const FSceneVector& Color)
{
	FSceneShape Ball;
	Ball.Material = Material;
	Ball.Owner = static_cast<int>(Shapes.size()) + 1;
	Ball.A = Center;
	Ball.Radius = Radius;
	Ball.Color = Color;
	Shapes.push_back(Ball);
}

static void AddColumn(std::vector<FSceneShape>& Shapes, float X, float Y, float Height, float Radius, const FSceneVector& Color)
{
	FSceneShape Column;
	Column.Kind = ESceneShape::Capsule;
	Column.Owner = static_cast<int>(Shapes.size()) + 1;
	Column.A = {X, Y, -Radius};
	Column.B = {X, Y, Height - Radius};
	Column.Radius = Radius;
	Column.Color = Color;
	Shapes.push_back(Column);
}

static void AddChart(std::vector<FSceneShape>& Shapes)
{
	FSceneShape Board;
	Board.Kind = ESceneShape::Board;
	Board.Material = ESceneMaterial::Chart;
	Board.Owner = static_cast<int>(Shapes.size()) + 1;
	Board.A = {0.55f, -1.75f, 0.62f};
	Board.B = Normalized({-0.93f, 0.30f, 0.20f});
	Board.Radius = 0.78f;
	Board.HalfHeight = 0.62f;
	Shapes.push_back(Board);
}

/** Height of a hop, in meters; nought at time 0. */
static float Hop(float Seconds, float Start)
{
	return Seconds <= 0.0f ? 0.0f : 0.30f * std::fabs(std::sin(3.0f * Seconds + Start)) * SmoothStep(0.0f, 0.5f, Seconds);
}
}

std::vector<FSceneShape> BuildScene(float Seconds)
{
	using namespace SceneContentPrivate;
	std::vector<FSceneShape> Shapes;
	AddFigure(
		Shapes, {0.55f, -0.62f, Hop(Seconds, 0.0f)}, 1.00f, FromSrgb(186, 26, 34), FromSrgb(240, 196, 164), FromSrgb(140, 72, 30), -4.0f);
	AddFigure(Shapes, {0.20f, 0.28f, Hop(Seconds, 0.8f)}, 1.08f, FromSrgb(16, 66, 178), FromSrgb(112, 70, 46), FromSrgb(20, 15, 14), 10.0f);
	AddFigure(
		Shapes, {0.75f, 1.12f, Hop(Seconds, 1.6f)}, 0.92f, FromSrgb(240, 180, 18), FromSrgb(206, 150, 104), FromSrgb(36, 24, 20), 14.0f);
	AddFigure(
		Shapes, {1.60f, 0.02f, Hop(Seconds, 2.4f)}, 1.16f, FromSrgb(18, 120, 58), FromSrgb(232, 178, 150), FromSrgb(176, 128, 58), 4.0f);
	AddBall(Shapes, {-0.55f, 1.12f, 0.34f}, 0.34f, ESceneMaterial::Chrome, {0.92f, 0.92f, 0.94f});
	AddBall(Shapes, {-0.95f, 0.42f, 0.20f}, 0.20f, ESceneMaterial::Matte, {0.18f, 0.18f, 0.18f});
	AddBall(Shapes, {-0.85f, -0.14f, 0.20f}, 0.20f, ESceneMaterial::Matte, {0.86f, 0.86f, 0.86f});
	AddBall(Shapes, {-0.62f, -0.70f, 0.22f}, 0.22f, ESceneMaterial::Gloss, {0.006f, 0.006f, 0.007f});
	AddBall(Shapes, {2.50f, -1.45f, 1.95f}, 0.20f, ESceneMaterial::Lamp, {9.0f, 5.6f, 2.4f});
	AddColumn(Shapes, 2.50f, -1.45f, 1.80f, 0.035f, FromSrgb(40, 40, 46));
	for (int Column = 0; Column < 4; ++Column)
	{
		AddColumn(Shapes, 1.9f + 2.1f * static_cast<float>(Column), 2.25f, 2.55f, 0.24f, FromSrgb(206, 198, 186));
	}
	AddChart(Shapes);
	return Shapes;
}

FSceneVector ScenePatch(int Index)
{
	static const FSceneVector Patches[ScenePatchCount] = {FromSrgb(116, 78, 62), FromSrgb(200, 146, 126), FromSrgb(92, 120, 160),
		FromSrgb(88, 108, 62), FromSrgb(132, 126, 180), FromSrgb(98, 190, 174), FromSrgb(222, 120, 40), FromSrgb(70, 88, 170),
		FromSrgb(196, 82, 98), FromSrgb(92, 56, 108), FromSrgb(164, 192, 60), FromSrgb(228, 164, 40), FromSrgb(44, 60, 156),
		FromSrgb(66, 150, 72), FromSrgb(180, 44, 56), FromSrgb(240, 204, 22), FromSrgb(190, 80, 156), FromSrgb(0, 138, 172),
		FromSrgb(245, 245, 245), FromSrgb(202, 202, 202), FromSrgb(162, 162, 162), FromSrgb(120, 120, 120), FromSrgb(82, 82, 82),
		FromSrgb(46, 46, 46)};
	return Patches[std::min(std::max(Index, 0), ScenePatchCount - 1)];
}
}

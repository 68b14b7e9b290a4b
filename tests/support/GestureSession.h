#pragma once

#include "kestotool/filltool/FillTool.h"
#include "kestotool/filltool/ToolGesture.h"
#include "support/TestDocument.h"
#include "support/TestToolSite.h"
#include "support/UndoHistory.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>

namespace KestoTest {

// Where a gesture session takes its decisions from: a seeded generator (tests, soaks) or the
// bytes of a fuzzer's input.
class Choices {
public:
    virtual ~Choices() = default;
    // A whole number in [lo, hi].
    virtual int Int(int lo, int hi) = 0;
    // Nothing is left to choose with (a byte source that ran dry).
    virtual bool Exhausted() const { return false; }
    bool Chance(int percent) { return Int(0, 99) < percent; }
    double Fraction() { return Int(0, 1 << 20) / static_cast<double>(1 << 20); }
};

class RandomChoices final : public Choices {
public:
    explicit RandomChoices(std::uint64_t seed) : m_rng(seed) {}
    int Int(int lo, int hi) override { return std::uniform_int_distribution<int>(lo, hi)(m_rng); }

private:
    std::mt19937_64 m_rng;
};

class ByteChoices final : public Choices {
public:
    ByteChoices(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}
    int Int(int lo, int hi) override;
    bool Exhausted() const override { return m_used >= m_size; }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_used = 0;
};

// What is wrong with a fill that a tool of the given kind committed; empty when nothing is:
// the kind unchanged, control points finite and inside the coordinate range, at least the
// kind's minimum of stops, positions sorted within 0..10000.
std::string InvalidFill(const KestoGDI::CFill& fill, const KestoPlatform::CRuntimeClass* kind);

// The host of a session: records every commit outside a gesture as an undo step, merges a
// gesture's commits into the one step recorded at its end, and checks each commit.
class SessionSite : public TestToolSite {
public:
    UndoHistory history;
    const KestoPlatform::CRuntimeClass* kind = nullptr;
    std::string failure;
    KestoTool::ToolGesture gesture;

    bool IsCreate() override { return gesture.IsCreate(); }
    bool IsInDrag() override { return gesture.InDrag(); }
    void UpdateFill(const KestoGDI::CFill* fill, const wchar_t* undoName) override;
    void UpdateTransparency(const KestoGDI::CFill* fill, const wchar_t* undoName, bool flag) override;
    void Check(const KestoGDI::CFill* fill);

private:
    void Keep(const KestoGDI::CFill* fill, const wchar_t* undoName);
};

// A session of random gestures on a random tool that the factory makes, as a careless host and
// a busy user would drive it: drags with Shift and Ctrl (creating or on handles), colour drops
// on and off the line, Delete, every toolbar command through OnCmdMsg with host IDs (and
// foreign ones), alpha, tint and level edits, object boxes that are empty or inverted,
// pixel-to-paper scales from 0.001 to 1000, coordinates across the whole range, 2 to 1,000
// stops. The process must have called KestoTool::Init.
class GestureSession {
public:
    GestureSession(Choices& choices, std::string label) : m_choices(choices), m_label(std::move(label)) {}

    // Plays up to steps steps (fewer when the choices run dry); with commandsOnly every step
    // routes a command. Then undoes to the start and redoes to the end. Answers an empty string
    // or what went wrong, with the label and the step.
    std::string Play(int steps, bool commandsOnly = false);

private:
    int Int(int lo, int hi) { return m_choices.Int(lo, hi); }
    bool Chance(int percent) { return m_choices.Chance(percent); }
    int Coordinate() { return Int(-m_scale, m_scale); }
    CPoint AnyPoint() { return {Coordinate(), Coordinate()}; }
    CPoint NearHandleOrAnywhere();
    std::unique_ptr<KestoGDI::CColour> AnyColour();
    const KestoPlatform::CRuntimeClass* PickKind();
    KestoKernel::RefPtr<KestoGDI::CFill> StartingFill(const KestoPlatform::CRuntimeClass* kind);
    void NewEnvironment();

    void Drag();
    void Drop();
    void DeleteAStop();
    void Command();
    void CellEdit();
    const char* Step(int op);
    std::string UndoAndRedo();

    Choices& m_choices;
    std::string m_label;
    int m_scale = 1000;
    TestDocument m_document;
    SessionSite m_site;
    std::unique_ptr<KestoTool::FillTool> m_tool;
    KestoPlatform::CXTPCommandBars m_bars;
};

} // namespace KestoTest

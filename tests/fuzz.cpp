#include "frame/conversions.h"
#include "scale/bands.h"
#include "tests/harness.h"

#include <charconv>
#include <cmath>
#include <iostream>

// Three programs of libFuzzer, each with one of the functions as FUZZ_TARGET: a text of any bytes must come through.
namespace {

/// Stops at an input for which this does not hold; libFuzzer keeps the input.
void Require(bool holds, char const* sentence)
{
    if (!holds) {
        std::cerr << "not so: " << sentence << '\n';
        std::abort();
    }
}

bool IsNear(Double one, Double other, Double share)
{
    return std::fabs(one - other) <= share * std::max({1.0, std::fabs(one), std::fabs(other)});
}

/// The number that the standard library reads at the start of the text; nothing if it is out of range.
std::optional<Double> ReadByLibrary(std::string_view text, std::chars_format format)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    bool const isNegative = text.starts_with('-');
    text.remove_prefix(isNegative || text.starts_with('+') ? 1 : 0);
    Double number = 0.0;
    if (!text.starts_with('-') &&
        std::from_chars(text.data(), text.data() + text.size(), number, format).ec ==
            std::errc::result_out_of_range) {
        return std::nullopt;
    }
    return isNegative ? -number : number;
}

void CheckWriting(Double number)
{
    std::string const text = Str(number);
    if (std::isnan(number)) {
        return;
    }
    Require(Str(CDbl(text)) == text, "a written number comes back as itself");
    Require(std::fabs(static_cast<Double>(ToInteger(number))) <= std::fabs(number) + 1.0,
            "an Integer is the number without its fraction");
    if (std::fabs(number) < 1e7) {
        Require(std::trunc(number) == number || IsNear(CDbl(text), number, 5.1e-7), "Str keeps seven digits");
        Double const cut = CDbl(Format(number, "#.###"));
        Double const slack = 1e-14 * std::fabs(number);
        Require(std::fabs(cut) <= std::fabs(number) + slack && std::fabs(cut - number) < 0.001 + slack,
                "Format cuts at three decimals");
    }
}

/// Any bytes are read without harm, and a text of characters that numbers have as the library reads it.
[[maybe_unused]] void Conversions(std::string const& bytes)
{
    std::string text = bytes;
    std::ranges::transform(text, text.begin(),
                           [](char one) { return "0123456789.+-eE \tx"[(one & 0xff) % 18]; });
    if (auto const number = ReadByLibrary(text, std::chars_format::fixed)) {
        Require(Val(text) == *number, "Val reads what the library reads");
    }
    if (auto const number = ReadByLibrary(text, std::chars_format::general)) {
        Require(CDbl(text) == *number, "CDbl reads what the library reads");
    }
    Double number = 0.0;
    bytes.copy(reinterpret_cast<char*>(&number), sizeof number);
    for (Double const each : {number, CDbl(text), CDbl(bytes), Val(bytes)}) {
        CheckWriting(each);
    }
}

/// The program with every question answered with No.
TestSession& Session()
{
    static auto* const session = [] {
        StartTests();
        auto* const started = new TestSession; // which never ends, like the toolkit under it
        PlatformDoors().messageBox = [](MessageBoxRequest const&) { return kNo; };
        return started;
    }();
    return *session;
}

/// Opens the text as a scale file. What is saved of it then comes back as it was, to the last character.
[[maybe_unused]] void ScaleFile(std::string const& text)
{
    TestSession& session = Session();
    session.fileToChoose = session.pathOf("scale");
    WriteFile(session.fileToChoose, QByteArray::fromStdString(text));
    session.form().foundaproblem().Text("");
    session.form()._FileOpen_Action();
    session.form().PushButton2_Action();
    session.form().PushButton2_Action(); // the first press only acknowledges a repair
    QString const saved = session.texts(kScaleFieldNames);
    QByteArray const content = ContentOf(session.fileToChoose);
    QByteArray lines;
    for (QString const& name : QString(kScaleFieldNames).split(u' ')) {
        lines += session.text(name).toUtf8() + '\n';
    }
    bool const isSaved = content == lines;
    Require(isSaved || content == QByteArray::fromStdString(text), "the file is the old one or the new one");
    session.form().PushButton3_Action(); // another scale, so that a file that is not read shows
    session.form()._FileOpen_Action();
    Require(!isSaved || session.texts(kScaleFieldNames) == saved, "a saved scale comes back");
}

/// Repairs a scale of any texts, one from each line, twice. It is sound then, and the second repair finds nothing in
/// whole numbers; in others it may find what the seven digits of a field have cut.
[[maybe_unused]] void Repair(std::string const& text)
{
    class mainscreen& form = Session().form();
    QStringList const lines = QString::fromUtf8(text).split(u'\n');
    for (std::size_t place = 0; place < bound::kCount; ++place) {
        ScaleField(form, place).Text(lines.value(static_cast<qsizetype>(place)).toStdString());
    }
    ForceTopOfScale(form); // as at the start and at a press of Grade
    form.gradingscaletest();
    ScaleNumbers const once = ReadScale(form);
    QString const texts = Session().texts(kScaleFieldNames);
    form.gradingscaletest();
    ScaleNumbers const twice = ReadScale(form);
    bool const isWhole = std::ranges::all_of(
        once, [](Double number) { return std::trunc(number) == number && std::fabs(number) < 1e15; });
    Require(!isWhole || Session().texts(kScaleFieldNames) == texts, "whole numbers are repaired once");
    for (std::size_t place = 1; place < once.size(); ++place) {
        Double const wanted = twice[place - 1] - (IsMaximum(place) ? 1.0 : 0.0);
        Require((!IsMaximum(place) && twice[place] < wanted) || IsNear(twice[place], wanted, 1e-6),
                "the repaired scale is sound");
        Require(IsNear(once[place], twice[place], 1e-6), "a repair is done once");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    FUZZ_TARGET(std::string(reinterpret_cast<char const*>(bytes), size));
    return 0;
}

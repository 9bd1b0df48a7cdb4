#include "frame/conversions.h"
#include "scale/bands.h"
#include "tests/harness.h"

#undef NDEBUG // libFuzzer keeps the input that an assertion stops at
#include <cassert>
#include <charconv>
#include <cmath>

// Three programs of libFuzzer, each with one of the functions as FUZZ_TARGET: a text of any bytes must come through.
namespace {

bool IsNear(Double one, Double other, Double share)
{
    return std::fabs(one - other) <= share * std::max({1.0, std::fabs(one), std::fabs(other)});
}

/// Whether the number is the one that the standard library reads at the start of the text, or out of its range.
bool IsAsRead(Double number, std::string_view text, std::chars_format format)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    text.remove_prefix(text.starts_with('+') && !text.starts_with("+-") ? 1 : 0);
    Double read = 0.0;
    std::errc const fault = std::from_chars(text.data(), text.data() + text.size(), read, format).ec;
    return number == read || fault == std::errc::result_out_of_range;
}

/// A text of characters that numbers have is read as the library reads it. What is read of any bytes comes back as it
/// was written, in full or with seven digits or three decimals.
[[maybe_unused]] void Conversions(std::string const& bytes)
{
    std::string text = bytes;
    std::ranges::transform(text, text.begin(),
                           [](char one) { return "0123456789.+-eE \tx"[(one & 0xff) % 18]; });
    assert(IsAsRead(Val(text), text, std::chars_format::fixed) && "Val reads what the library reads");
    assert(IsAsRead(CDbl(text), text, std::chars_format::general) && "CDbl reads what the library reads");
    Double any = 0.0;
    bytes.copy(reinterpret_cast<char*>(&any), sizeof any);
    for (Double const number : {std::isnan(any) ? 0.0 : any, CDbl(text), CDbl(bytes), Val(bytes)}) {
        Double const written = CDbl(Str(number));
        assert(Str(written) == Str(number) && "a written number comes back as itself");
        bool const isLarge = std::fabs(number) >= 1e7;
        assert((isLarge || IsNear(written, number, 5.1e-7)) && "Str keeps seven digits");
        Double const lost = std::copysign(1.0, number) * (number - CDbl(Format(number, "#.###")));
        Double const slack = 1e-14 * std::fabs(number);
        assert((isLarge || (lost >= -slack && lost < 0.001 + slack)) && "Format cuts at three decimals");
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
    bool const isSaved = QByteArray(content).replace('\n', '|') == saved.toUtf8() + '|';
    assert((isSaved || content == QByteArray::fromStdString(text)) &&
           "the file is the old one or the new one");
    session.form().PushButton3_Action(); // another scale, so that a file that is not read shows
    session.form()._FileOpen_Action();
    assert((!isSaved || session.texts(kScaleFieldNames) == saved) && "a saved scale comes back");
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
    assert((!isWhole || Session().texts(kScaleFieldNames) == texts) && "whole numbers are repaired once");
    for (std::size_t place = 1; place < once.size(); ++place) {
        Double const wanted = twice[place - 1] - (IsMaximum(place) ? 1.0 : 0.0);
        assert(((!IsMaximum(place) && twice[place] < wanted) || IsNear(twice[place], wanted, 1e-6)) &&
               "the repaired scale is sound");
        assert(IsNear(once[place], twice[place], 1e-6) && "a repair is done once");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    FUZZ_TARGET(std::string(reinterpret_cast<char const*>(bytes), size));
    return 0;
}

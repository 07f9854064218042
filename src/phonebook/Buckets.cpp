#include "phonebook/Buckets.h"

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr std::array<Bucket, kBucketCount> kBuckets{{
    {"AName", "ANu"}, {"BName", "BNu"}, {"CName", "CNu"}, {"DName", "DNu"}, {"EName", "ENu"},
    {"FName", "FNu"}, {"GName", "GNu"}, {"HName", "HNu"}, {"IName", "INu"}, {"JName", "JNu"},
    {"KName", "KNu"}, {"LName", "LNu"}, {"MName", "MNu"}, {"NName", "NNu"}, {"OName", "ONu"},
    {"PName", "PNu"}, {"QName", "QNu"}, {"RName", "RNu"}, {"SName", "SNu"}, {"TName", "TNu"},
    {"UName", "UNu"}, {"VName", "VNu"}, {"WName", "WNu"}, {"XName", "XNu"}, {"YName", "YNu"},
    {"ZName", "ZNu"}, {"#", "SyNu"},
}};

bool isSymbol(unsigned code) {
    return code != 0 && (code < 'A' || code > 'z' || (code > 'Z' && code < 'a'));
}

}  // namespace

const Bucket& bucketAt(int index) {
    if (index < 0 || index >= kBucketCount)
        throw Failure("The phonebook has no such letter.");
    return kBuckets[static_cast<std::size_t>(index)];
}

int bucketOfText(std::string_view text, const CodePage& codePage) {
    const std::string_view shown = fieldText(text);
    if (shown.empty())
        return kSymbolBucket;
    const char first = codePage.upper(shown.front());
    return first >= 'A' && first <= 'Z' ? first - 'A' : kSymbolBucket;
}

int bucketOf(RecordView record, const CodePage& codePage) {
    const bool person = !record.isEmpty(Field::Last);
    return bucketOfText(record.raw(person ? Field::Last : Field::Company), codePage);
}

BucketFilter::BucketFilter(std::string_view bucketName, const CodePage& codePage) {
    const std::string_view shown = trimBlanks(bucketName);
    if (shown.empty())
        return;
    const char letter = shown.front();
    for (unsigned code = 0; code < accepted_.size(); ++code)
        accepted_[code] =
            letter == '#' ? isSymbol(code) : codePage.upper(static_cast<char>(code)) == letter;
}

}  // namespace velmora

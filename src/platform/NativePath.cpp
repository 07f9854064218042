#include "platform/NativePath.h"

namespace velmora {
namespace {

std::size_t beginOfName(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? 0 : slash + 1;
}

std::size_t beginOfExtension(const std::string& name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name.size() : dot;
}

}  // namespace

NativePath NativePath::folder() const {
    return NativePath(utf8_.substr(0, beginOfName(utf8_)));
}

std::string NativePath::name() const {
    return utf8_.substr(beginOfName(utf8_));
}

std::string NativePath::stem() const {
    const std::string whole = name();
    return whole.substr(0, beginOfExtension(whole));
}

std::string NativePath::extension() const {
    const std::string whole = name();
    return whole.substr(beginOfExtension(whole));
}

NativePath NativePath::sibling(std::string_view name) const {
    return folder().withEnding(name);
}

NativePath NativePath::withEnding(std::string_view more) const {
    return NativePath(utf8_ + std::string(more));
}

NativePath NativePath::operator/(std::string_view name) const {
    const bool separated = utf8_.empty() || utf8_.back() == '/';
    return withEnding(separated ? "" : "/").withEnding(name);
}

}  // namespace velmora

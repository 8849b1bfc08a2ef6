#include "Platform/Json/StructuralIndex.hpp"

#include <simdjson.h>

#include <algorithm>
#include <new>
#include <string_view>

namespace quillet::platform::json {

namespace {

/// Where a window that may not be longer than `text` ends: before a comma outside strings if possible, since
/// no token goes on behind one; 0 if there is none near the end. A comma may be in a string all the same, and
/// then the window ends within a string, which simdjson reports.
std::size_t lastCut(std::string_view text) {
    constexpr std::size_t furthest = 1024;
    const std::size_t skipped = text.size() - std::min(text.size(), furthest);
    const std::string_view end = text.substr(skipped);
    // A comma within a string is seldom the last character of it.
    std::size_t comma = end.rfind(",\"");
    if (comma == end.npos) {
        comma = end.rfind(',');
    }
    return comma == end.npos ? 0 : skipped + comma;
}

} // namespace

// Only simdjson's first stage is used: its second stage builds a tree with numbers as doubles. The first
// stage is part of simdjson's run-time dispatch interface. It does not read past the end, so the body needs
// no padding and no copy.
StructuralIndex::StructuralIndex(const std::string& body, std::size_t window)
    : body_(body), window_(window), begin_(body.data()) {}

StructuralIndex::~StructuralIndex() = default;

const std::uint32_t* StructuralIndex::offsets() const {
    return parser_->structural_indexes.get();
}

bool StructuralIndex::moveTo(const char* start) {
    begin_ = start;
    const std::string_view rest(start, static_cast<std::size_t>(body_.data() + body_.size() - start));
    // A window that ends within a string, or has too few tokens, is made larger: so one string or number may
    // be as long as the body. As each is twice as large as the one before, all of them together cost no more
    // than twice the last.
    for (std::size_t size = window_; size < rest.size(); size *= 2) {
        const std::size_t length = lastCut(rest.substr(0, size));
        const auto error = findTokens(length, size);
        if (error == simdjson::SUCCESS && parser_->n_structural_indexes >= lookahead) {
            endAt(length, parser_->n_structural_indexes - lookahead + 1);
            return true;
        }
        if (error != simdjson::SUCCESS && error != simdjson::UNCLOSED_STRING && error != simdjson::EMPTY) {
            return false;
        }
    }
    const bool found = findTokens(rest.size(), rest.size()) == simdjson::SUCCESS;
    if (found) {
        endAt(rest.size(), parser_->n_structural_indexes + 2);
    }
    return found;
}

int StructuralIndex::findTokens(std::size_t length, std::size_t capacity) {
    int error = simdjson::SUCCESS;
    if (!parser_) {
        const std::size_t depthOfUnusedSecondPass = 1;
        error = simdjson::get_active_implementation()->create_dom_parser_implementation(
            capacity, depthOfUnusedSecondPass, parser_);
    } else if (parser_->capacity() < capacity) {
        error = parser_->set_capacity(capacity);
    }
    if (error == simdjson::MEMALLOC) {
        throw std::bad_alloc();
    }
    return error != simdjson::SUCCESS ? error
                                      : parser_->stage1(reinterpret_cast<const std::uint8_t*>(begin_), length,
                                                        simdjson::stage1_mode::regular);
}

void StructuralIndex::endAt(std::size_t length, std::size_t refill) {
    // Sets the end marks that simdjson sets too; its array has room for more than these.
    const std::size_t count = parser_->n_structural_indexes;
    std::uint32_t* const offsets = parser_->structural_indexes.get();
    offsets[count] = offsets[count + 1] = static_cast<std::uint32_t>(length);
    refillAt_ = offsets + refill;
}

} // namespace quillet::platform::json

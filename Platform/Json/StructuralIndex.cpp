#include "Platform/Json/StructuralIndex.hpp"

#include <simdjson.h>

#include <new>

namespace quillet::platform::json {

std::optional<StructuralIndex> StructuralIndex::of(const std::string& body) {
    // Only simdjson's first stage is used: its second stage builds a tree with numbers as doubles. The first
    // stage is part of simdjson's run-time dispatch interface. It does not read past the end, so the body
    // needs no padding and no copy.
    std::unique_ptr<simdjson::internal::dom_parser_implementation> parser;
    const std::size_t depthOfUnusedSecondPass = 1;
    if (body.empty()) {
        return std::nullopt;
    }
    const auto made = simdjson::get_active_implementation()->create_dom_parser_implementation(
        body.size(), depthOfUnusedSecondPass, parser);
    if (made == simdjson::MEMALLOC) {
        throw std::bad_alloc();
    }
    if (made != simdjson::SUCCESS) {
        return std::nullopt;
    }
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(body.data());
    if (parser->stage1(bytes, body.size(), simdjson::stage1_mode::regular) != simdjson::SUCCESS) {
        return std::nullopt;
    }
    const std::size_t count = parser->n_structural_indexes;
    // Sets the end marks that simdjson sets too; its array has room for more than these.
    parser->structural_indexes[count] = parser->structural_indexes[count + 1] =
        static_cast<std::uint32_t>(body.size());
    return StructuralIndex(std::move(parser->structural_indexes), count + 2);
}

} // namespace quillet::platform::json

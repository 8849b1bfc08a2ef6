#include "Harness/Row.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace quillet::benchmarks {

namespace {

double ratioOf(double value, double yardstick, Goal goal) {
    return goal.kind == Goal::Kind::atMost ? value / yardstick : yardstick / value;
}

std::string kindOf(Goal goal) {
    return goal.kind == Goal::Kind::atMost ? "at most" : "at least";
}

nlohmann::json optional(std::optional<double> figure) {
    return figure ? nlohmann::json(*figure) : nlohmann::json();
}
std::optional<double> optional(const nlohmann::json& figure) {
    return figure.is_null() ? std::nullopt : std::optional(figure.get<double>());
}

} // namespace

std::string shortFigure(double figure) {
    std::array<char, 32> text{};
    const double size = std::abs(figure);
    const int digits = size >= 1000 ? 0 : size >= 100 ? 1 : size >= 1 ? 2 : 3;
    std::snprintf(text.data(), text.size(), "%.*f", digits, figure);
    return text.data();
}

Row ratioRow(std::string name, std::string unit, const Rounds& rounds, Goal goal) {
    Row row =
        ratioRow(std::move(name), std::move(unit), rounds.ours.median(), rounds.yardstick.median(), goal);
    const double lowest = ratioOf(rounds.ours.least(), rounds.yardstick.least(), goal);
    row.met = row.met && goal.metBy(lowest);
    row.remark = "of the minima " + shortFigure(lowest);
    return row;
}

Row ratioRow(std::string name, std::string unit, double value, double yardstick, Goal goal) {
    const double ratio = ratioOf(value, yardstick, goal);
    return {std::move(name), std::move(unit), value, yardstick, ratio, goal, goal.metBy(ratio), {}};
}

Row plainRow(std::string name, std::string unit, double value, Goal goal, std::optional<double> yardstick) {
    return {std::move(name), std::move(unit), value, yardstick, {}, goal, goal.metBy(value), {}};
}

void writeRows(const std::string& path, const std::vector<Row>& rows) {
    auto list = nlohmann::json::array();
    for (const Row& row : rows) {
        list.push_back({{"name", row.name},
                        {"unit", row.unit},
                        {"value", row.value},
                        {"yardstick", optional(row.yardstick)},
                        {"ratio", optional(row.ratio)},
                        {"goal", row.goal.bound},
                        {"kind", kindOf(row.goal)},
                        {"met", row.met},
                        {"remark", row.remark}});
    }
    std::ofstream file(path);
    file << nlohmann::json{{"rows", list}}.dump(1) << '\n';
    if (!file.flush()) {
        throw std::runtime_error("The rows cannot be written to " + path + ".");
    }
}

std::vector<Row> readRows(const std::string& path) {
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("There are no rows in " + path + ".");
    }
    std::vector<Row> rows;
    const auto document = nlohmann::json::parse(file);
    for (const auto& row : document.at("rows")) {
        const double bound = row.at("goal");
        rows.push_back({row.at("name"), row.at("unit"), row.at("value"), optional(row.at("yardstick")),
                        optional(row.at("ratio")),
                        row.at("kind") == "at most" ? atMost(bound) : atLeast(bound), row.at("met"),
                        row.at("remark")});
    }
    return rows;
}

void printRows(const std::vector<Row>& rows) {
    std::size_t widest = 0;
    for (const Row& row : rows) {
        widest = std::max(widest, row.name.size());
    }
    const auto name = static_cast<int>(widest);
    std::printf("%-*s %11s %11s %-9s %7s  %-14s %s\n", name, "name", "value", "yardstick", "unit", "ratio",
                "goal", "met");
    for (const Row& row : rows) {
        const std::string goal = kindOf(row.goal) + ' ' + shortFigure(row.goal.bound);
        std::printf("%-*s %11s %11s %-9s %7s  %-14s %s%s%s\n", name, row.name.c_str(),
                    shortFigure(row.value).c_str(), row.yardstick ? shortFigure(*row.yardstick).c_str() : "",
                    row.unit.c_str(), row.ratio ? shortFigure(*row.ratio).c_str() : "", goal.c_str(),
                    row.met ? "yes" : "NO", row.remark.empty() ? "" : "   ", row.remark.c_str());
    }
}

} // namespace quillet::benchmarks

#include "Screens/ResultCurve.hpp"

#include "Harness/Rounds.hpp"
#include "Screens/OffscreenApplication.hpp"
#include "Screens/ResultStage.hpp"

#include <sstream>
#include <vector>

namespace quillet::benchmarks {

std::string resultOpenedCurve(const Options& options) {
    const OffscreenApplication application;
    ResultStage stage;
    std::ostringstream text;
    text << "products\tall\tsorting and wording\tscreen and first frame\n";
    const auto sizes = options.quick ? std::vector<std::size_t>{10, 100}
                                     : std::vector<std::size_t>{10, 100, 1000, 2000, 4000, 7000, 10'000};
    for (const std::size_t size : sizes) {
        const auto products = madeProducts(size, true);
        Samples all;
        Samples made;
        Samples shown;
        const std::size_t unmeasured = 3;
        for (std::size_t i = 0; i < options.times(24, 4); ++i) {
            const auto opening = stage.open(products);
            stage.close();
            if (i >= unmeasured) {
                all.add(opening.all().count());
                made.add((opening.input + opening.view).count());
                shown.add((opening.push + opening.frame).count());
            }
        }
        text << size << '\t' << all.median() << '\t' << made.median() << '\t' << shown.median() << '\n';
    }
    return text.str();
}

} // namespace quillet::benchmarks

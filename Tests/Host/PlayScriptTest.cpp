#include "Play/PlayScript.hpp"

#include <QKeySequence>

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

/// A step in one line with all its values.
QString told(const Step& step) {
    struct Teller {
        static QString by(Device device) {
            return device == Device::mouse ? "" : device == Device::touch ? " by touch" : " by key";
        }
        QString operator()(const steps::Open& s) const {
            const auto& [cart, token, provider, environment] = s.order;
            return QStringLiteral("open %1 %2 %3 %4 %5 %6")
                .arg(QString::fromStdString(cart.uuid), QString::number(cart.consultantId),
                     QString::fromStdString(cart.country), QString::fromStdString(token),
                     QString::fromStdString(provider), QString::number(int(environment)));
        }
        QString operator()(const steps::Handmade& s) const { return "handmade " + s.code; }
        QString operator()(const steps::Language& s) const { return "language " + s.code; }
        QString operator()(const steps::Close&) const { return "close"; }
        QString operator()(const steps::Tap& s) const { return "tap " + s.name + by(s.by); }
        QString operator()(const steps::Expect& s) const {
            return QStringLiteral("expect %1 %2").arg(s.text).arg(s.within.count());
        }
        QString operator()(const steps::Absent& s) const { return "absent " + s.text; }
        QString operator()(const steps::Title& s) const { return "title " + s.text; }
        QString operator()(const steps::Background& s) const { return "background" + by(s.by); }
        QString operator()(const steps::CloseIcon& s) const { return "close-icon" + by(s.by); }
        QString operator()(const steps::Scroll& s) const { return s.toEnd ? "scroll end" : "scroll start"; }
        QString operator()(const steps::Back&) const { return "back"; }
        QString operator()(const steps::Shot& s) const { return "shot " + s.name; }
        QString operator()(const steps::Network& s) const { return s.on ? "network on" : "network off"; }
        QString operator()(const steps::Size& s) const {
            return QStringLiteral("size %1 %2").arg(s.size.width()).arg(s.size.height());
        }
        QString operator()(const steps::Theme& s) const {
            return s.theme == kel::KelTheme::light  ? "theme light"
                   : s.theme == kel::KelTheme::dark ? "theme dark"
                                                    : "theme contrast";
        }
        QString operator()(const steps::TextScale& s) const {
            return QStringLiteral("text-scale %1").arg(s.percent);
        }
        QString operator()(const steps::Motion& s) const {
            return s.reduced ? "motion reduced" : "motion full";
        }
        QString operator()(const steps::Direction& s) const {
            return s.direction == Qt::RightToLeft ? "direction rtl" : "direction ltr";
        }
        QString operator()(const steps::Insets& s) const {
            return QStringLiteral("insets left %1 top %2 right %3 bottom %4")
                .arg(s.margins.left())
                .arg(s.margins.top())
                .arg(s.margins.right())
                .arg(s.margins.bottom());
        }
        QString operator()(const steps::Press& s) const {
            return "press " + QKeySequence(s.key).toString(QKeySequence::PortableText);
        }
        QString operator()(const steps::Focused& s) const {
            return QStringLiteral("focused %1 %2").arg(s.name).arg(s.within.count());
        }
    };
    return std::visit(Teller(), step);
}

} // namespace

TEST(PlayScript, ReadsEachKindOfStep) {
    const std::pair<QString, QString> lines[] = {
        {"open cart=a consultant=18446744073709551615 country=CL",
         "open a 18446744073709551615 CL sample-access-token sample-idp 0"},
        {R"(open country=CL cart="a b" consultant=1 token="" provider=p environment=prd)",
         "open a b 1 CL  p 2"},
        {R"(open cart="" consultant=0 country="" environment=hml)",
         "open  0  sample-access-token sample-idp 1"},
        {"open cart=a=b consultant=1 country=CL", "open a=b 1 CL sample-access-token sample-idp 0"},
        {"handmade ERROR_CART_ALREADY_SUBMITTED", "handmade ERROR_CART_ALREADY_SUBMITTED"},
        {"language pt", "language pt"},
        {"language xb", "language xb"},
        {"close", "close"},
        {R"(tap "Ver Pedidos")", "tap Ver Pedidos"},
        {R"(tap "Ver Pedidos" by=touch)", "tap Ver Pedidos by touch"},
        {"tap by=key by=key", "tap by=key by key"},
        {R"(tap "say \"yes\" \\ no")", R"(tap say "yes" \ no)"},
        {R"(expect "# 1")", "expect # 1 10000"},
        {R"(expect "a" within=0.5)", "expect a 500"},
        {R"(expect "" within=75)", "expect  75000"},
        {"absent x", "absent x"},
        {R"(title "")", "title "},
        {"background", "background"},
        {"  close-icon\t", "close-icon"},
        {"close-icon by=key", "close-icon by key"},
        {"scroll end", "scroll end"},
        {"scroll start", "scroll start"},
        {"back\r", "back"},
        {"shot 01-a.b_c", "shot 01-a.b_c"},
        {"network off", "network off"},
        {"size 320x568", "size 320 568"},
        {"size 1280x1280", "size 1280 1280"},
        {"theme light", "theme light"},
        {"theme dark", "theme dark"},
        {"theme contrast", "theme contrast"},
        {"text-scale 100", "text-scale 100"},
        {"text-scale 200", "text-scale 200"},
        {"motion reduced", "motion reduced"},
        {"motion full", "motion full"},
        {"direction rtl", "direction rtl"},
        {"direction ltr", "direction ltr"},
        {"insets 44 0 34  200", "insets left 200 top 44 right 0 bottom 34"},
        {"press Tab", "press Tab"},
        {"press Backtab", "press Backtab"},
        {"press Enter", "press Enter"},
        {"press Return", "press Return"},
        {"press Space", "press Space"},
        {"press Escape", "press Esc"},
        {"press Up", "press Up"},
        {"press Down", "press Down"},
        {"press PageUp", "press PgUp"},
        {"press PageDown", "press PgDown"},
        {"press Home", "press Home"},
        {"press End", "press End"},
        {R"(focused "Ver Pedidos")", "focused Ver Pedidos 10000"},
        {"focused x within=0", "focused x 0"},
    };
    for (const auto& [line, expected] : lines) {
        SCOPED_TRACE(line.toStdString());
        const auto play = parsePlay("p", "# a comment\n\n" + line + "\n");
        ASSERT_TRUE(play) << play.error().toStdString();
        ASSERT_EQ(play->lines.size(), 1u);
        EXPECT_EQ(told(play->lines[0].step), expected);
        EXPECT_EQ(play->lines[0].text, line.trimmed());
    }
}

TEST(PlayScript, NamesTheLineAndWhatIsWrongWithIt) {
    const std::pair<QString, QString> lines[] = {
        {"dance", "unknown step \"dance\""},
        {"tap Ver Pedidos", "tap takes one text"},
        {"tap x by=key by=touch", "tap takes one text"},
        {R"(tap "Ver Pedidos)", "a quotation mark is left open"},
        {"expect a b", "this step takes a text, and within=SECONDS"},
        {"expect a within=soon", "within takes seconds"},
        {"expect a within=nan", "within takes seconds"},
        {"expect a within=1 within=2", "this step takes a text, and within=SECONDS"},
        {"title a b", "this step takes one text"},
        {"back now", "this step takes nothing"},
        {"background by=key", "background takes nothing but by=touch"},
        {"close-icon now", "close-icon takes nothing but by=touch or by=key"},
        {"scroll up", "scroll takes end or start"},
        {"shot ../a", "shot takes a name"},
        {"network maybe", "network takes on or off"},
        {"size", "size takes WxH, each from 320 to 1280"},
        {"size 320 568", "size takes WxH"},
        {"size 1281x800", "size takes WxH"},
        {"size 320x568px", "size takes WxH"},
        {"theme", "theme takes light, dark or contrast"},
        {"theme Dark", "theme takes light"},
        {"text-scale 99", "text-scale takes a whole number of percent, from 100 to 200"},
        {"text-scale 201", "text-scale takes a whole number"},
        {"text-scale 150%", "text-scale takes a whole number"},
        {"text-scale 1.5", "text-scale takes a whole number"},
        {"motion slow", "motion takes reduced or full"},
        {"direction up", "direction takes ltr or rtl"},
        {"insets 44 0 34", "insets takes top, right, bottom and left, each from 0 to 200"},
        {"insets 0 0 0 201", "insets takes top"},
        {"insets 0 0 -1 0", "insets takes top"},
        {"insets 0 0 0.5 0", "insets takes top"},
        {"press tab", "press takes Tab, Backtab, Enter"},
        {"press Tab Tab", "press takes Tab"},
        {"focused", "this step takes a text"},
        {"handmade 422", "handmade takes "},
        {"language fi", "language takes "},
        {"open cart=a consultant=1 country=CL colour=red", "open takes cart=UUID"},
        {"open cart=a cart=b consultant=1 country=CL", "open takes cart=UUID"},
        {"open cart=a consultant=-1 country=CL", "not a consultant's number: -1"},
        {"open cart=a consultant=18446744073709551616 country=CL", "not a consultant's number"},
        {"open cart=a consultant=1 country=CL environment=test", "environment is dev, hml or prd, not test"},
    };
    for (const auto& [line, complaint] : lines) {
        SCOPED_TRACE(line.toStdString());
        const auto play = parsePlay("p", "close\n" + line);
        ASSERT_FALSE(play);
        EXPECT_TRUE(play.error().startsWith("p, line 2: " + complaint)) << play.error().toStdString();
        EXPECT_FALSE(play.error().contains('\n'));
    }
    EXPECT_TRUE(parsePlay("p", "close\nlanguage pt")->hasLanguage);
    EXPECT_FALSE(parsePlay("p", "close\n# language pt")->hasLanguage);
    EXPECT_EQ(parsePlay("p", "# nothing but a comment\n").error(), "p has no steps");
}

} // namespace demo::testing

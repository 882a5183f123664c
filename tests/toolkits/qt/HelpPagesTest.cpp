// The pages themselves: complete, linked, and true to the dialogs, the files and the standards.

#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/Objects.h"
#include "tests/support/SettingsClasses.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <QHelpEngineCore>
#include <QHelpLink>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace QuorConversions;
using Support::ScriptedPlatform;
using Support::SettingsClass;
using QtToolkit::ToQt;

namespace {

/// The context numbers for which there is a page.
std::vector<int> Topics() {
    std::vector<int> topics;
    for (int topic = 10100; topic <= 10118; ++topic)
        topics.push_back(topic);
    topics.insert(topics.end(), {10145, 10146});
    return topics;
}

/// What a page says, read as XML.
struct Content {
    QString title;
    QString heading;
    QString text;        ///< all of it, blanks as one
    QStringList links;   ///< as they are written
    QSet<QString> marks; ///< classes of its elements
    QString equation;
    QString standard;
    QString problem; ///< why it could not be read
};

Content Read(const QByteArray& page) {
    Content content;
    QXmlStreamReader xml(page);
    QStringList inside; // class, or else name, of the elements around the text
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QString mark = xml.attributes().value("class").toString();
            inside << (mark.isEmpty() ? xml.name().toString() : mark);
            content.marks << mark;
            for (const char* const attribute : {"href", "src"})
                if (xml.attributes().hasAttribute(attribute))
                    content.links << xml.attributes().value(attribute).toString();
            break;
        }
        case QXmlStreamReader::EndElement:
            inside.removeLast();
            break;
        case QXmlStreamReader::Characters:
            if (inside.contains("title"))
                content.title += xml.text();
            else
                content.text += xml.text();
            if (inside.contains("h1"))
                content.heading += xml.text();
            if (inside.contains("equation"))
                content.equation += xml.text();
            if (inside.contains("standard"))
                content.standard += xml.text();
            break;
        default:
            break;
        }
    }
    content.text = content.text.simplified();
    content.problem = xml.hasError() ? xml.errorString() : QString();
    return content;
}

class HelpPagesTest : public testing::Test {
protected:
    HelpPagesTest() {
        engine.setReadOnly(true);
        if (!engine.setupData())
            throw std::runtime_error(engine.error().toStdString());
    }

    QUrl PageOf(const QString& keyword) const { return engine.documentsForIdentifier(keyword).value(0).url; }
    Content Page(int topic) const { return Read(engine.fileData(PageOf(QString::number(topic)))); }
    QList<QUrl> AllPages() {
        return engine.files(engine.registeredDocumentations().value(0), QString(), QStringLiteral("html"));
    }

    QHelpEngineCore engine{QStringLiteral(QUOR_HELP_COLLECTION)};
};

/// The dialog of one settings class, and its page.
class HelpPageOfADialog : public HelpPagesTest, public testing::WithParamInterface<SettingsClass> {
protected:
    /// Opens the dialog to look at it.
    template <class Action>
    void Look(Action action) {
        platform->InDialog([&](Scripted::Person& person) {
            action(person.Sees());
            person.Click(L"Cancel");
        });
        CQuorConversion conversion(platform);
        conversion.SetConversionType(GetParam().code);
        EXPECT_FALSE(conversion.Edit());
    }
    Content ItsPage() {
        Look([this](const Dialog& dialog) { m_topic = dialog.HelpContext(); });
        return Page(m_topic);
    }

    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();

private:
    int m_topic = 0;
};

INSTANTIATE_TEST_SUITE_P(EveryClass, HelpPageOfADialog, testing::ValuesIn(Support::settingsClasses),
                         [](const auto& tested) { return Support::Narrow(tested.param.className); });

} // namespace

TEST_F(HelpPagesTest, EveryTopicHasOnePageWithATitleOfItsOwn) {
    QSet<QString> titles;
    for (const int topic : Topics()) {
        EXPECT_EQ(engine.documentsForIdentifier(QString::number(topic)).size(), 1) << topic;
        const Content page = Page(topic);
        EXPECT_EQ(page.problem, "") << topic;
        EXPECT_FALSE(page.title.isEmpty()) << topic;
        EXPECT_EQ(page.heading, page.title) << topic;
        EXPECT_GT(page.text.size(), 800) << topic << " says next to nothing";
        titles << page.title;
    }
    EXPECT_EQ(titles.size(), static_cast<qsizetype>(Topics().size()));
}

TEST_F(HelpPagesTest, NoLinkIsDeadAndEveryPageIsReachedFromTheFirst) {
    QSet<QUrl> reached{PageOf("index")};
    QList<QUrl> toRead{PageOf("index")};
    while (!toRead.isEmpty()) {
        const QUrl page = toRead.takeFirst();
        const Content content = Read(engine.fileData(page));
        EXPECT_EQ(content.problem, "") << page.toString().toStdString();
        for (const QString& link : content.links) {
            const QUrl target = page.resolved(QUrl(link));
            EXPECT_FALSE(engine.fileData(target).isEmpty())
                << page.fileName().toStdString() << " leads to " << link.toStdString();
            if (!reached.contains(target) && target.fileName().endsWith(".html"))
                toRead << target;
            reached << target;
        }
    }
    ASSERT_EQ(AllPages().size(), static_cast<qsizetype>(Topics().size()) + 1);
    for (const QUrl& page : AllPages())
        EXPECT_TRUE(reached.contains(page)) << page.toString().toStdString();
}

TEST_F(HelpPagesTest, LeaveTheColoursToThePalette) {
    const QRegularExpression colour("color|(?<!&)#[0-9a-f]{3}", QRegularExpression::CaseInsensitiveOption);
    EXPECT_FALSE(QString(engine.fileData(PageOf("index").resolved(QUrl("help.css")))).contains(colour));
    for (const QUrl& page : AllPages())
        EXPECT_FALSE(QString::fromUtf8(engine.fileData(page)).contains(colour))
            << page.toString().toStdString();
}

TEST_P(HelpPageOfADialog, NamesEquationAndStandard) {
    const Content page = ItsPage();
    EXPECT_TRUE(page.equation.contains('=')) << page.equation.toStdString();
    EXPECT_TRUE(page.standard.startsWith("Standard: ")) << page.standard.toStdString();
    EXPECT_GT(page.standard.size(), 20);
    EXPECT_TRUE(page.marks.contains("fields"));
    EXPECT_TRUE(page.text.contains("On the certificate"));
}

TEST_P(HelpPageOfADialog, SaysInWhichSectionAndFileTypeTheSettingsAreKept) {
    const Content page = ItsPage();
    EXPECT_TRUE(page.text.contains("*." + ToQt(GetParam().fileExtension))) << page.text.toStdString();
    EXPECT_TRUE(page.text.contains("[" + ToQt(GetParam().sectionName) + "]"));
    EXPECT_TRUE(page.text.contains("- Settings"));
}

TEST_P(HelpPageOfADialog, ExplainsEveryField) {
    const Content page = ItsPage();
    const QRegularExpression bracket("\\[.*");
    const QRegularExpression numbered("^[A-D](\\d+)$"); // C4 stands under "C3 to C15"
    Look([&](const Dialog& dialog) {
        int fields = 0;
        for (const auto& control : dialog.Controls()) {
            const auto* const label = dynamic_cast<const Label*>(control.get());
            if (!label || !label->Caption().ends_with(L":"))
                continue;
            const QString caption = ToQt(label->Caption()).chopped(1).remove(bracket);
            const bool inARow = numbered.match(caption).captured(1).toInt() > 3;
            EXPECT_TRUE(page.text.contains(caption) || (inARow && page.text.contains(caption.left(1) + "3")))
                << caption.toStdString();
            ++fields;
        }
        EXPECT_GT(fields, 0);
    });
}

TEST_P(HelpPageOfADialog, NamesEveryKeyOfItsSections) {
    const auto memory = std::make_shared<Support::MemoryIniFile>();
    std::shared_ptr<QuorIniFile::INIFile> file = memory;
    CQuorConversion conversion(platform);
    conversion.SetConversionType(GetParam().code);
    conversion.Settings()->WriteToFile(file, L"", L"Probe - Settings");
    const Content page = ItsPage();
    ASSERT_FALSE(memory->values.empty());
    for (const auto& [place, value] : memory->values) {
        const std::wstring key = place.second.substr(0, place.second.find_last_not_of(L"0123456789") + 1);
        if (key != L"Version" && key != L"NumCoefficients") { // which say nothing of one class
            EXPECT_TRUE(page.text.contains(ToQt(key))) << ToQt(key).toStdString();
        }
    }
}

TEST_F(HelpPagesTest, ExplainTheMessagesOfTheDialogs) {
    const QString text = Page(10109).text;
    for (const auto id :
         {IDS_ENTER_COEFFICIENTS, IDS_ENTER_RTPW, IDS_SELECT_RANGE, IDS_SELECT_SCALE, IDS_SELECT_TC_TYPE,
          IDS_TABLE_VALUE_ZERO, IDS_OVERFLOWED, IDS_WRONG_FILE_VERSION, IDS_WRONG_THERMISTOR_DIRECTION,
          IDS_RANGE_OUT_OF_RANGE, IDS_INDEX_OUT_OF_RANGE, IDS_TC_TYPE_INDEX, IDS_ERROR_OCCURRED_WHILE,
          IDS_NO_DIALOG, IDS_NO_SCREEN, IDS_SYSTEM_ERROR})
        EXPECT_TRUE(text.contains(ToQt(TableText(id)).trimmed())) << id;
}

TEST_F(HelpPagesTest, ListTheThermocoupleTypesThatTheDialogsOffer) {
    const auto listOf = [](const auto& settings) {
        Support::ListRecorder list;
        settings->FillTCTypeNameCombo(list);
        QStringList types;
        for (const auto& [name, number] : list.items)
            types << ToQt(name) + " " + QString::number(number);
        return types.join(", ") + ".";
    };
    const auto platform = std::make_shared<ScriptedPlatform>();
    const QString points = listOf(Support::NewSettings<CQuorTCTypeX>(CONV_TCTYPEX, platform));
    const QString polynomial = listOf(Support::NewSettings<CQuorTCTypePoly>(CONV_TCTYPEPOLY, platform));
    EXPECT_TRUE(Page(10117).text.contains(points)) << points.toStdString();
    EXPECT_TRUE(Page(10146).text.contains(polynomial)) << polynomial.toStdString();
}

TEST_F(HelpPagesTest, GiveTheLimitsOfTheSubRangesOfTheITS90) {
    const QString text = Page(10110).text;
    for (const char* const row :
         {"1 (low)13.8033 K to 273.16 K", "2 (low)24.5561 K to 273.16 K", "3 (low)54.3584 K to 273.16 K",
          "4 (low)83.8058 K to 273.16 K", "5 (low and high)234.3156 K to 302.9146 K",
          "6 (high)0 \u00B0C to 961.78 \u00B0C", "7 (high)0 \u00B0C to 660.323 \u00B0C",
          "8 (high)0 \u00B0C to 419.527 \u00B0C", "9 (high)0 \u00B0C to 231.928 \u00B0C",
          "10 (high)0 \u00B0C to 156.5985 \u00B0C", "11 (high)0 \u00B0C to 29.7646 \u00B0C"})
        EXPECT_TRUE(text.contains(row)) << row;
}

// Whoever checks an entry relies on these numbers; here they come from the equations, worked out once more.
TEST_F(HelpPagesTest, GiveExamplesThatFollowFromTheEquations) {
    const auto says = [this](int topic, double number, int digits, const char* unit) {
        const QString text = QString::number(number, 'f', digits) + unit;
        EXPECT_TRUE(Page(topic).text.contains(text)) << topic << " does not say " << text.toStdString();
    };
    const auto sum = [](std::initializer_list<double> coefficients, double x) {
        double power = 1.0;
        double result = 0.0;
        for (const double coefficient : coefficients) {
            result += coefficient * power;
            power *= x;
        }
        return result;
    };

    // The reference functions of the ITS-90, and W for a deviation, by iteration.
    const auto reference = [&sum](double kelvin) {
        if (kelvin < 273.16)
            return std::exp(
                sum({-2.13534729, 3.18324720, -1.80143597, 0.71727204, 0.50344027, -0.61899395, -0.05332322,
                     0.28021362, 0.10715224, -0.29302865, 0.04459872, 0.11868632, -0.05248134},
                    (std::log(kelvin / 273.16) + 1.5) / 1.5));
        return sum({2.78157254, 1.64650916, -0.13714390, -0.00649767, -0.00234444, 0.00511868, 0.00187982,
                    -0.00204472, -0.00046122, 0.00045724},
                   (kelvin - 754.15) / 481.0);
    };
    const auto ratio = [&reference](double kelvin, const auto& deviation) {
        double w = reference(kelvin);
        for (int i = 0; i < 50; ++i)
            w = reference(kelvin) + deviation(w);
        return w;
    };
    const auto low = [](double w) { return -1.5907E-04 * (w - 1) + 1.133E-05 * (w - 1) * std::log(w); };
    const auto high = [&sum](double w) { return sum({0.0, -1.5873E-04, -8.412E-06, 1.806E-06}, w - 1); };
    says(10110, reference(83.8058), 8, "");
    says(10110, ratio(83.8058, low), 7, "");
    says(10110, 25.52836 * ratio(83.8058, low), 6, " \u03A9");
    says(10110, reference(505.078), 8, "");
    says(10110, ratio(505.078, high), 7, "");
    says(10110, 25.52836 * ratio(505.078, high), 6, " \u03A9");
    const auto twoTerms = [&sum](double w) { return sum({0.0, -1.4926E-04, -7.91E-06}, w - 1); };
    says(10113, 2.501164 * ratio(692.677, twoTerms), 6, " \u03A9 at 419.527");
    says(10113, 2.501164 * ratio(773.15, twoTerms), 6, " \u03A9 at 500");
    says(10118, reference(234.3156), 3, " at \u221238.8344");
    says(10118, reference(302.9146), 3, " at 29.7646");
    says(10118, reference(692.677), 3, " at 419.527");

    // At 0, 100 and 419.58 degrees the correction of the IPTS-68 is 0: t' is t68.
    const auto ipts68 = [](double t) {
        return 25.50287 * (1 + 3.926083E-3 * (t - 1.49668 * (t / 100) * (t / 100 - 1)));
    };
    says(10111, ipts68(100), 6, " \u03A9 at 100");
    says(10111, ipts68(419.58), 6, " \u03A9 at 419.58");

    const auto alphaForm = [](double t) {
        const double u = t / 100;
        const double beta = t < 0 ? 0.1086338 : 0.0;
        return 100.0162 * (1 + 3.85055E-3 * (t - 1.499786 * u * (u - 1) - beta * u * u * u * (u - 1)));
    };
    const auto iec = [](double r0, double t) {
        const double c = t < 0 ? -4.183E-12 : 0.0;
        return r0 * (1 + 3.9083E-3 * t - 5.775E-7 * t * t + c * (t - 100) * t * t * t);
    };
    says(10100, alphaForm(-100), 5, " \u03A9 at \u2212100");
    says(10100, alphaForm(100), 5, " \u03A9 at 100");
    says(10100, iec(100, -100), 5, " \u03A9");
    says(10100, iec(100, 100), 5, " \u03A9");
    says(10145, iec(100.0234, 100), 5, " \u03A9 at 100");

    const auto celsius = [&sum](double ohms) {
        return 1 / sum({1.129241E-3, 2.341077E-4, 0.0, 8.775468E-8}, std::log(ohms)) - 273.15;
    };
    const auto ohms = [&sum](double t) {
        return std::exp(sum({-5.075582009, 4497.446436, -34731.463, -10810257.11}, 1 / (t + 273.15)));
    };
    says(10114, celsius(10000), 5, " \u00B0C");
    EXPECT_NEAR(celsius(32650), 0.0, 0.0005);
    says(10114, ohms(25), 2, " \u03A9");
    says(10114, ohms(70), 1, " \u03A9");

    const auto platinum = [&sum](double r) {
        return sum({-246.808688, 2.38286109, 8.07877113E-04, 3.53959755E-07, 8.98627921E-10}, r);
    };
    says(10112, platinum(100), 4, " \u00B0C");
    says(10112, platinum(138.5055), 4, " \u00B0C");

    // Reference functions of the types J, K and T.
    const auto typeJ = [&sum](double t) {
        return sum({0.0, 0.503811878150E-01, 0.304758369300E-04, -0.856810657200E-07, 0.132281952950E-09,
                    -0.170529583370E-12, 0.209480906970E-15, -0.125383953360E-18, 0.156317256970E-22},
                   t);
    };
    const auto typeK = [&sum](double t) {
        return sum({-0.176004136860E-01, 0.389212049750E-01, 0.185587700320E-04, -0.994575928740E-07,
                    0.318409457190E-09, -0.560728448890E-12, 0.560750590590E-15, -0.320207200030E-18,
                    0.971511471520E-22, -0.121047212750E-25},
                   t) +
               0.1185976 * std::exp(-0.1183432E-03 * (t - 126.9686) * (t - 126.9686));
    };
    const auto typeT = [&sum](double t) {
        return sum({0.0, 0.387481063640E-01, 0.332922278800E-04, 0.206182434040E-06, -0.218822568460E-08,
                    0.109968809280E-10, -0.308157587720E-13, 0.454791352900E-16, -0.275129016730E-19},
                   t);
    };
    says(10115, typeJ(25), 3, QString::number(typeJ(100), 'f', 3).toUtf8().constData());
    says(10115, typeK(25), 3, QString::number(typeK(100), 'f', 3).toUtf8().constData());
    says(10115, typeT(25), 3, QString::number(typeT(100), 'f', 3).toUtf8().constData());
    says(10146, sum({0.0, 1.42E-04, -1.15E-07}, 100), 5, " mV at 100");
    says(10146, sum({0.0, 1.42E-04, -1.15E-07}, 200), 4, " mV at 200");
}

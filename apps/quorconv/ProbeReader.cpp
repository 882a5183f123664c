#include "apps/quorconv/ProbeReader.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/Records.h"

#include <algorithm>
#include <cmath>

namespace quorconv {

using namespace QuorProbeFile;
using QuorIniFile::IniStore;

const Value* ProbeValues::Find(const std::wstring& path) const {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const RecordImage::Entry& entry) { return entry.path == path; });
    return found == entries.end() ? nullptr : &found->value;
}

bool SameValues(const ProbeValues& a, const ProbeValues& b) {
    return a.code == b.code &&
           std::equal(a.entries.begin(), a.entries.end(), b.entries.begin(), b.entries.end(),
                      [](const RecordImage::Entry& x, const RecordImage::Entry& y) {
                          return x.path == y.path && SameValue(x.value, y.value);
                      });
}

ProbeValues ValuesOf(const Probe& probe) {
    ProbeValues values{probe.Section(), probe.Conversion().ConversionType(), probe.Name(), {}, 0};
    if (probe.Settings())
        values.entries = RecordImage::Of(*probe.Settings())->Entries();
    return values;
}

namespace {

/// Reads a value of a shape, in which whole numbers and flags are the same.
struct ValueOfShape : StandsInFile {
    using StandsInFile::operator();
    bool operator()(double& value) const {
        // Settings that hold 0.0 keep it when they are given -0.0.
        return store.ReadDouble(key, value) && !(value == 0.0 && std::signbit(value));
    }
    bool operator()(std::wstring& value) const { return store.ReadString(key, value); }
};

} // namespace

bool ProbeReader::Fill(Shape& shape, IniStore& store, const std::wstring& section) {
    for (std::size_t at = 0; at < shape.keys.size(); ++at) {
        const Key& key = shape.keys[at];
        if (!key.section.empty())
            store.SetSection(m_section.assign(section).append(key.section));
        if (!std::visit(ValueOfShape{{store, key.name}}, shape.probe.entries[at].value))
            return false;
    }
    shape.probe.section = section;
    return true;
}

/// Adds the shape of m_other, unless reading by it would give something else.
void ProbeReader::Learn(IniStore& store) {
    constexpr std::size_t mostKeys = 64; // a file may claim 32767 coefficients
    constexpr std::size_t mostShapes = 32;
    if (m_other.entries.size() > mostKeys)
        return;
    auto shape = std::make_unique<Shape>(Shape{m_other, {}});
    shape->probe.shape = ++m_last;
    std::wstring selected;
    for (const RecordImage::Entry& entry : m_other.entries) {
        const auto slash = entry.path.find(L'/');
        std::wstring nested(settingsMark);
        if (slash != std::wstring::npos)
            nested.append(nestedMark).append(entry.path, 0, slash);
        shape->keys.push_back({nested == selected ? std::wstring() : nested,
                               slash == std::wstring::npos ? entry.path : entry.path.substr(slash + 1)});
        selected = std::move(nested);
    }
    if (!Fill(*shape, store, m_other.section) || !SameValues(shape->probe, m_other))
        return;
    m_shapes.insert(m_shapes.begin(), std::move(shape));
    if (m_shapes.size() > mostShapes)
        m_shapes.pop_back();
}

/// The first shape of a type of which `isMeant` is true.
template <class IsMeant>
const ProbeValues* ProbeReader::First(std::int32_t code, const IsMeant& isMeant) {
    const auto shape = std::find_if(m_shapes.begin(), m_shapes.end(), [&](const auto& known) {
        return known->probe.code == code && isMeant(*known);
    });
    if (shape == m_shapes.end())
        return nullptr;
    std::rotate(m_shapes.begin(), shape, shape + 1);
    return &m_shapes.front()->probe;
}

const ProbeValues* ProbeReader::Find(ProbeFile& file, const std::wstring& section) {
    IniStore& store = *file.Store();
    std::int16_t code = 0;
    store.SetSection(section);
    if (!store.ReadInteger(QuorConversions::conversionTypeKey, code))
        return nullptr;
    if (const ProbeValues* const known =
            First(code, [&](Shape& shape) { return Fill(shape, store, section); }))
        return known;
    Probe probe(section);
    if (!ReadWhole(file, probe))
        return nullptr;
    m_other = ValuesOf(probe);
    Learn(store);
    return &m_other;
}

const ProbeValues* ProbeReader::Make(std::int32_t code, const std::function<bool(ProbeValues&)>& fill) {
    return First(code, [&](Shape& shape) { return fill(shape.probe); });
}

const ProbeValues& ProbeReader::Read(ProbeFile& file, const std::wstring& section) {
    if (const ProbeValues* const whole = Find(file, section))
        return *whole;
    return m_other = ValuesOf(ReadProbe(file, section));
}

} // namespace quorconv

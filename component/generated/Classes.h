#pragma once

// Made by component/generate from members.txt: change that.
// clang-format off

#include "component/Classes.h"

#include <cstdint>

namespace QuorConversions::Component {

enum class ClassId : std::uint8_t {
    CQuorConversion,
    CQuorITS90,
    CQuorITS90LowRange,
    CQuorITS90HighRange,
    CQuorIPTS68,
    CQuorCVD,
    CQuorPT100,
    CQuorHTPRT,
    CQuorWT90,
    CQuorThermistor,
    CQuorPolynomial,
    CQuorTCPolynomial,
    CQuorTCTable,
    CQuorTCTypeX,
    CQuorTCTypePoly,
    INIFile,
    Registry,
    ListControl,
    Platform,
    Dialog,
    Control,
    ProbeFile,
    ProbeTable,
};

template <class T> inline constexpr ClassId classOf = ClassId{}; // only those below are used
template <> inline constexpr ClassId classOf<CQuorConversion> = ClassId::CQuorConversion;
template <> inline constexpr ClassId classOf<CQuorITS90> = ClassId::CQuorITS90;
template <> inline constexpr ClassId classOf<CQuorITS90LowRange> = ClassId::CQuorITS90LowRange;
template <> inline constexpr ClassId classOf<CQuorITS90HighRange> = ClassId::CQuorITS90HighRange;
template <> inline constexpr ClassId classOf<CQuorIPTS68> = ClassId::CQuorIPTS68;
template <> inline constexpr ClassId classOf<CQuorCVD> = ClassId::CQuorCVD;
template <> inline constexpr ClassId classOf<CQuorPT100> = ClassId::CQuorPT100;
template <> inline constexpr ClassId classOf<CQuorHTPRT> = ClassId::CQuorHTPRT;
template <> inline constexpr ClassId classOf<CQuorWT90> = ClassId::CQuorWT90;
template <> inline constexpr ClassId classOf<CQuorThermistor> = ClassId::CQuorThermistor;
template <> inline constexpr ClassId classOf<CQuorPolynomial> = ClassId::CQuorPolynomial;
template <> inline constexpr ClassId classOf<CQuorTCPolynomial> = ClassId::CQuorTCPolynomial;
template <> inline constexpr ClassId classOf<CQuorTCTable> = ClassId::CQuorTCTable;
template <> inline constexpr ClassId classOf<CQuorTCTypeX> = ClassId::CQuorTCTypeX;
template <> inline constexpr ClassId classOf<CQuorTCTypePoly> = ClassId::CQuorTCTypePoly;
template <> inline constexpr ClassId classOf<QuorIniFile::INIFile> = ClassId::INIFile;
template <> inline constexpr ClassId classOf<QuorRegistryII::Registry> = ClassId::Registry;
template <> inline constexpr ClassId classOf<ListControl> = ClassId::ListControl;
template <> inline constexpr ClassId classOf<Platform> = ClassId::Platform;
template <> inline constexpr ClassId classOf<DialogFace> = ClassId::Dialog;
template <> inline constexpr ClassId classOf<ControlFace> = ClassId::Control;
template <> inline constexpr ClassId classOf<ProbeFileFace> = ClassId::ProbeFile;
template <> inline constexpr ClassId classOf<ProbeTableFace> = ClassId::ProbeTable;

/// The settings classes, which are given out as what they are.
using SettingsClasses = Classes<CQuorITS90, CQuorIPTS68, CQuorCVD, CQuorPT100, CQuorHTPRT, CQuorWT90, CQuorThermistor, CQuorPolynomial, CQuorTCPolynomial, CQuorTCTable, CQuorTCTypeX, CQuorTCTypePoly>;

} // namespace QuorConversions::Component

#pragma once

namespace sagomi {

// Units. The mechanics hold mm, N and N mm; screens speak metres, kN and kNm, tables of sections centimetres.
// One spelling of each conversion for the whole program, exact to the last bit.

constexpr double m_a_mm(double m) { return m * 1000; }
constexpr double mm_a_m(double mm) { return mm / 1000; }
constexpr double kN_a_N(double kN) { return kN * 1000; }
constexpr double N_a_kN(double N) { return N / 1000; }
constexpr double kNm_a_Nmm(double kNm) { return kNm * 1e6; }
constexpr double Nmm_a_kNm(double Nmm) { return Nmm / 1e6; }

constexpr double cm_a_mm(double cm) { return cm * 10; }
constexpr double mm_a_cm(double mm) { return mm / 10; }
constexpr double cm2_a_mm2(double cm2) { return cm2 * 100; }
constexpr double mm2_a_cm2(double mm2) { return mm2 / 100; }
constexpr double mm2_a_m2(double mm2) { return mm2 / 1e6; }
constexpr double cm3_a_mm3(double cm3) { return cm3 * 1000; }
constexpr double mm3_a_cm3(double mm3) { return mm3 / 1000; }
constexpr double cm4_a_mm4(double cm4) { return cm4 * 1e4; }
constexpr double mm4_a_cm4(double mm4) { return mm4 / 1e4; }
constexpr double cm6_a_mm6(double cm6) { return cm6 * 1e6; }
constexpr double mm6_a_cm6(double mm6) { return mm6 / 1e6; }

/// A unit that stays.
constexpr double Uguale(double valore) { return valore; }

} // namespace sagomi

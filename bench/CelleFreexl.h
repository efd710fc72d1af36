#pragma once

#include <freexl.h>

#include <benchmark/benchmark.h>

#include <filesystem>

/// Every cell of every sheet of a workbook by freexl: the yardstick of all that begins with the workbook.
inline void CelleFreexl(const std::filesystem::path& file) {
    const void* handle = nullptr;
    freexl_open(file.c_str(), &handle);
    unsigned sheets = 0;
    freexl_get_info(handle, FREEXL_BIFF_SHEET_COUNT, &sheets);
    for (unsigned short i = 0; i < sheets; ++i) {
        freexl_select_active_worksheet(handle, i);
        unsigned rows = 0;
        unsigned short columns = 0;
        freexl_worksheet_dimensions(handle, &rows, &columns);
        for (unsigned r = 0; r < rows; ++r)
            for (unsigned short c = 0; c < columns; ++c) {
                FreeXL_CellValue v{};
                freexl_get_cell_value(handle, r, c, &v);
                benchmark::DoNotOptimize(v);
            }
    }
    freexl_close(handle);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/catalogue_files.h"

#include <utility>

namespace varnholt {
namespace {

constexpr std::size_t rememberedIndices = 1;
/// A series of 100 models takes about 0.2 MB.
constexpr std::size_t rememberedSeries = 16;

}  // namespace

CatalogueFiles::CatalogueFiles(std::unique_ptr<const FileSource> files)
    : files_(std::move(files)),
      indices_(readPumpIndex, FileKind::pumpList, rememberedIndices),
      series_(readPumpSeries, FileKind::pumpSeries, rememberedSeries) {}

CatalogueFiles::CatalogueFiles() : CatalogueFiles(std::make_unique<DiskFiles>()) {}

std::shared_ptr<const CatalogueFiles::Index> CatalogueFiles::index(const std::string& path) {
    return indices_.read(*files_, path);
}

std::shared_ptr<const CatalogueFiles::Series> CatalogueFiles::series(const std::string& path) {
    return series_.read(*files_, path);
}

}  // namespace varnholt

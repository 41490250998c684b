#include "connections/filter_preset.h"

#include "connections/connection_config.h"
#include "connections/extension_list.h"
#include "platform/localized.h"

namespace tarnel {

namespace {

constexpr const char* photoList =
    "jpg, jpeg, png, tiff, tif, bmp, heic, heif, webp, gif, cr2, cr3, nef, nrw, arw, srf, sr2, "
    "raf, orf, rw2, pef, dng, x3f, 3fr, fff, iiq, mos, mrw, rwl, srw, erf, mef, gpr, xmp, pp3, "
    "dop, cos, kdc, dcr, cap";

FilterPreset preset(const char* id, const char* name, const char* description,
                    const char* extensions, bool exclude = false) {
    return {id, localized(name), localized(description), extensions, exclude};
}

bool sameTokens(const FilterStrings& a, const FilterStrings& b) {
    return parseFilterTokens(a.included) == parseFilterTokens(b.included) &&
           parseFilterTokens(a.excluded) == parseFilterTokens(b.excluded);
}

}  // namespace

const std::vector<FilterPreset>& filterPresets() {
    static const std::vector<FilterPreset> presets = {
        preset("all_files", LOCALIZED_TEXT("All files (no filter)"),
               "Downloads every file without filtering", ""),
        preset("all_except_temp", LOCALIZED_TEXT("All except temporaries (recommended)"),
               "Downloads everything, ignores temp/partial files", defaultExcludedExtensions, true),
        preset("photography", LOCALIZED_TEXT("Photography"),
               "RAW, processed images and sidecar files", photoList),
        preset("ecommerce", LOCALIZED_TEXT("E-commerce / Data"),
               "CSV, Excel, XML, JSON and EDI files",
               "csv, xlsx, xls, xml, json, edi, txt, pdf, zip"),
        preset("audiovisual", LOCALIZED_TEXT("Audiovisual"),
               "Video, audio, subtitles and editing formats",
               "mp4, mov, avi, mkv, mts, m2ts, mxf, r3d, braw, prores, wav, aif, aiff, mp3, aac, "
               "flac, xml, edl, aaf, omf, srt, vtt"),
        preset("health", LOCALIZED_TEXT("Health / Compliance"),
               "Medical, HL7, DICOM and encrypted files",
               "pdf, hl7, xml, json, csv, dcm, txt, zip, pgp, gpg"),
        preset("finance", LOCALIZED_TEXT("Finance / Accounting"),
               "Banking, invoicing and financial data",
               "csv, xlsx, xls, xml, pdf, ofx, qfx, qbo, mt940, bai, bai2, edi, txt, zip"),
        preset("data_analytics", LOCALIZED_TEXT("Data / Analytics"),
               "Datasets, compressed archives and query formats",
               "csv, tsv, xlsx, json, xml, parquet, avro, zip, gz, tar, sql"),
        preset("research", LOCALIZED_TEXT("Research / Science"),
               "Scientific data, genomics and simulation files",
               "csv, tsv, hdf5, h5, nc, fits, dat, txt, json, xml, zip, tar, gz, fasta, fastq, "
               "bam, sam, vcf"),
        preset("agency", LOCALIZED_TEXT("Agency / Creative"),
               "Design, photography and creative assets",
               "jpg, jpeg, png, tiff, tif, psd, ai, eps, svg, pdf, mp4, mov, gif, webp, indd, zip"),
        preset("it_integrations", LOCALIZED_TEXT("IT / Integrations"),
               "Config, logs, backups and data exchange",
               "csv, json, xml, log, sql, zip, gz, tar, bak, cfg, yaml, yml"),
        preset("print_graphics", LOCALIZED_TEXT("Print / Graphics"),
               "Print-ready, prepress and design files",
               "pdf, tiff, tif, jpg, jpeg, eps, ai, psd, indd, zip, png, svg"),
        // The same list as "photography" on purpose; detection finds that one first.
        preset("photos", LOCALIZED_TEXT("Photos only"), "RAW + processed image formats", photoList),
        preset("video", LOCALIZED_TEXT("Video only"), "Common video and cinema formats",
               "mp4, mov, avi, mkv, mts, m2ts, mxf, r3d, braw, prores"),
        preset("custom", LOCALIZED_TEXT("Custom"), "Define your own extensions", ""),
    };
    return presets;
}

const FilterPreset& filterPreset(std::string_view id) {
    for (const FilterPreset& p : filterPresets())
        if (p.id == id)
            return p;
    return filterPresets().back();
}

const std::vector<ExtensionCategory>& extensionCategories() {
    static const std::vector<ExtensionCategory> categories = {
        {"images",
         localized("ext.cat.images"),
         {"jpg", "jpeg", "png", "tiff", "tif", "bmp", "heic", "heif", "webp", "gif"},
         false},
        {"raw",
         "RAW",
         {"cr2", "cr3", "nef", "nrw", "arw", "srf", "sr2", "raf", "orf", "rw2", "pef", "dng",
          "x3f", "3fr", "fff", "iiq", "mos", "mrw", "rwl", "srw", "erf", "mef", "gpr"},
         false},
        {"video",
         localized("ext.cat.video"),
         {"mp4", "mov", "avi", "mkv", "mts", "m2ts", "mxf", "r3d", "braw", "prores"},
         false},
        {"audio", localized("ext.cat.audio"), {"mp3", "wav", "aiff", "aif", "aac", "flac"}, false},
        {"documents",
         localized("ext.cat.documents"),
         {"pdf", "docx", "xlsx", "xls", "csv", "txt", "xml", "json", "zip"},
         false},
        {"temp",
         localized("ext.cat.temp"),
         {"tmp", "temp", "part", "crdownload", "download", "partial", "filepart", "thumbs.db",
          "ds_store"},
         true},
    };
    return categories;
}

FilterStrings presetStrings(const FilterPreset& preset) {
    if (preset.exclude)
        return {"", preset.extensions};
    return {preset.extensions, preset.id == "all_files" ? "" : defaultExcludedExtensions};
}

const FilterPreset& matchingPreset(std::string_view included, std::string_view excluded) {
    const FilterStrings current{std::string(included), std::string(excluded)};
    for (const FilterPreset& p : filterPresets())
        if (p.id != "custom" && sameTokens(current, presetStrings(p)))
            return p;
    return filterPreset("custom");
}

bool applyFilterPreset(FilterStrings& strings, const FilterPreset& preset) {
    if (preset.id == "custom")
        return false;
    FilterStrings target = presetStrings(preset);
    if (strings == target)
        return false;
    strings = std::move(target);
    return true;
}

bool isPresetModified(const FilterStrings& strings, const FilterPreset& preset) {
    return preset.id != "custom" && !sameTokens(strings, presetStrings(preset));
}

}  // namespace tarnel

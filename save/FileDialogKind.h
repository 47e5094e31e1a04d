#pragma once

#include <QString>

struct OutputKeys;

// What a file dialog is for, told by its mediator's object name: which naming mode its names
// follow, how its previews are drawn and which preferences it reads.
class FileDialogKind
{
public:
    explicit FileDialogKind(const QString& name);

    static constexpr char save[] = "filesavedialog";
    static constexpr char snapshot[] = "snapshotdialog";
    static constexpr char convert[] = "batchconverter";
    static constexpr char convertParameters[] = "convertparametereditdialog";
    static constexpr char report[] = "reportExportDialog";
    static constexpr char open[] = "fileopendialog";
    static constexpr char layoutSave[] = "layoutsavedialog";

    const QString& name() const { return m_name; }
    // 1 save (also open and layout save), 6 convert, 7 snapshot, 16 report.
    int mode() const { return m_mode; }
    int previewMode() const;
    bool isConvert() const { return m_mode == 6; }
    bool isReport() const { return m_mode == 16; }
    bool isSnapshot() const { return m_mode == 7; }
    bool isOpen() const { return m_name == QLatin1String(open); }
    bool isLayoutSave() const { return m_name == QLatin1String(layoutSave); }
    // The preferences of the mode's family.
    const OutputKeys& keys() const;
    // The skip setting is the report's in a report dialog, the save's in every other.
    const OutputKeys& skipKeys() const;
    // Where the output's format and codec are kept; a family without a codec gives "".
    QString formatKey() const;
    QString codecKey() const;

private:
    QString m_name;
    int m_mode;
};

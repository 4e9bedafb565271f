#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace tambrelle {

class DescriptorWatch;

/// Tells when something in a folder comes, goes, or has been written. Where the system has no more watches to
/// give, it is silent; the toolkit's own would then list the folder once a second.
class FolderWatch final : public QObject {
    Q_OBJECT

public:
    /// Needs the toolkit's application object.
    explicit FolderWatch(const QString& folder, QObject* parent = nullptr);
    ~FolderWatch() override;

    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

signals:
    void changed();

private:
    int descriptor = -1;
    std::unique_ptr<DescriptorWatch> watch;
};

} // namespace tambrelle

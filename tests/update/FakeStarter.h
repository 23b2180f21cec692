#pragma once

#include "update/SoftwareUpdate.h"

#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace fieldcal::testing {

/// Records the installers that it is asked to start.
class FakeStarter : public InstallerStarter {
public:
    std::optional<UpdateFailure> obstacle() override { return obstacleFound; }
    std::optional<UpdateFailure> start(const QString& installer, const QString& arguments,
                                       const ExpectedInstaller& wanted) override {
        expected = wanted;
        QFile file(installer);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        started = file.readAll();
        command = QFileInfo(installer).fileName() + ' ' + arguments;
        others = QFileInfo(QFileInfo(installer).path()).permissions() & (QFile::ReadGroup | QFile::ReadOther);
        return startFailure;
    }
    std::optional<UpdateFailure> obstacleFound, startFailure;
    QByteArray started;
    QString command;
    ExpectedInstaller expected;
    QFile::Permissions others;
};

}  // namespace fieldcal::testing

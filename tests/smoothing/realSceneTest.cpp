// SPDX-License-Identifier: Apache-2.0
//
// Scenes that people made with Maya. The folder comes from the environment variable KORVEX_SCENES.
#include "smoothing/smoothingScene.h"

#include <cmath>

#include <QDir>

class realScenes : public SmoothingScene
{
protected:
    // The largest distance of a vertex row's sum from 1, as shown.
    double worstSum() const
    {
        double worst = 0.0;
        for (int row = 1; row < model_->rowCount(); ++row) {
            double sum = 0.0;
            for (int column = 0; column < model_->columnCount(); ++column)
                sum += std::stod("0" + cellText(row, column));
            worst = std::max(worst, std::abs(sum - 1.0));
        }
        return worst;
    }
};

TEST_F(realScenes, areSmoothedAndComeBack)
{
    if (qEnvironmentVariableIsEmpty("KORVEX_SCENES"))
        GTEST_SKIP() << "KORVEX_SCENES names no folder of scenes";
    const QDir folder(qEnvironmentVariable("KORVEX_SCENES"));
    int smoothed = 0;
    for (const QString &name : folder.entryList({"*.ma"})) {
        SCOPED_TRACE(name.toStdString());
        mel("file -f -open \"" + folder.filePath(name).toStdString() + "\"");
        for (const std::string &mesh : {std::string("`ls -type mesh`")}) {
            mel("select -r " + mesh);
            load();
        }
        if (model_->rowCount() == 0)
            continue;
        mel("select -cl");
        const std::string before = picture();
        const int items = std::stoi(undoItems());
        smooth(0.1, 3);
        const bool didChange = picture() != before;
        EXPECT_LT(worstSum(), 1e-9);
        while (std::stoi(undoItems()) > items)
            mel("undo");
        EXPECT_EQ(picture(), before);
        std::cerr << name.toStdString() << " " << model_->rowCount() << " " << didChange << "\n";
        smoothed += didChange;
    }
    EXPECT_GT(smoothed, 0);
}

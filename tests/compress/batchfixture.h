#pragma once

#include "compress/packer.h"

namespace tessaro::test {

/// What is told of a file that is not there after its step.
inline Message missing(const std::string& file) {
    return {"Error moving " + file + " to destination folder: C:\\Out", "File Error", Buttons::Ok,
            Icon::Stop};
}

/// A batch of either kind, on a system that is not Windows 98, with what stands around it.
template <class Batch>
class BatchTest : public ::testing::Test {
  protected:
    TestProgram world_;
    Packer packer_{world_};
    TestWorld& disk_ = world_.world;
    RecordingBatch form_;
    Batch batch_{world_.program, form_, Ucc(world_.program, anotherSystem)};

    /// Runs the batch and answers its closing question.
    void run(Answer answer = Answer::No) {
        world_.dialogs.answer(answer);
        batch_.run();
    }
    /// The row of one and the same file, so often.
    void listRepeatedly(const std::string& path, std::size_t times) {
        packer_.fillBatch(batch_.ListView1, std::vector<std::string>(times, path));
    }
};

}  // namespace tessaro::test

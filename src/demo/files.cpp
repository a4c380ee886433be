// I/O of data files and temporary files.
#include "demo/histogram.h"
#include "demo/storage.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct File {
  std::string tablespace;
  std::string name;
  int number = 0;
  bool temporary = false;
  // Thousandths, of its kind of file.
  int readShare = 0;
  int scanShare = 0;
  int writeShare = 0;
  // Thousandths of the usual time of a read, and of a wait for a buffer.
  int slowness = 1000;
  int waitSlowness = 1000;
  std::int64_t reads = 0, writes = 0, singleReads = 0, readBlocks = 0, writeBlocks = 0;
  std::int64_t readMicros = 0, writeMicros = 0, singleMicros = 0, waits = 0, waitMicros = 0;
  Histogram histogram{};
};

class Files : public Topic {
 public:
  explicit Files(const Setting& setting)
      : database_(setting.database()),
        random_(setting.random),
        data_(setting.tables.perSnapshot(database_, "stats$filestatxs", kColumns)),
        temporary_(setting.tables.perSnapshot(database_, "stats$tempstatxs", kColumns)),
        dataHistogram_(setting.tables.perSnapshot(database_, "stats$file_histogram", kBuckets)),
        temporaryHistogram_(setting.tables.perSnapshot(database_, "stats$temp_histogram", kBuckets)) {
    int number = 0;
    for (const Tablespace& space : tablespacesOf(setting.instance)) {
      // The first file of a tablespace is the fullest: it has what the others, each a little else, leave.
      int reads = space.readShare, scans = space.scanShare, writes = space.writeShare;
      const int first = ++number;
      for (int i = 2; i <= space.files; ++i) {
        const auto part = random_.between(780, 1220);
        const auto share = [&](int whole, int& left) {
          const int mine = static_cast<int>((whole * part / (space.files + 1) + 500) / 1000);
          left -= mine;
          return mine;
        };
        const int ofReads = share(space.readShare, reads);
        const int ofScans = share(space.scanShare, scans);
        add(space.name, i, ++number, false, ofReads, ofScans, share(space.writeShare, writes));
      }
      add(space.name, 1, first, false, reads, scans, writes);
    }
    add("TEMP", 1, 1, true, 600, 600, 600);
    add("TEMP", 2, 2, true, 400, 400, 400);
  }

  void restart() override {
    for (File& file : files_) {
      file.reads = file.writes = file.singleReads = file.readBlocks = file.writeBlocks = 0;
      file.readMicros = file.writeMicros = file.singleMicros = file.waits = file.waitMicros = 0;
      file.histogram = {};
    }
  }

  void advance(const Work& w) override {
    give(w.singleReads, false, &File::reads, &File::readShare);
    give(w.multiRequests + w.directRequests, false, &File::reads, &File::scanShare);
    give(w.singleReads, false, &File::readBlocks, &File::readShare);
    give(w.multiReads + w.directReads, false, &File::readBlocks, &File::scanShare);
    giveTime(w.multiRead.micros + w.directRead.micros, false, &File::readMicros, &File::scanShare,
             &File::slowness);
    give(w.writeRequests + w.directWriteRequests, false, &File::writes, &File::writeShare);
    give(w.writes + w.directWrites, false, &File::writeBlocks, &File::writeShare);
    give(w.writeRequests * 1900 + w.directWrite.micros, false, &File::writeMicros, &File::writeShare);
    give(w.bufferBusy.waits + w.otherRead.waits, false, &File::waits, &File::readShare);
    giveTime(w.bufferBusy.micros + w.otherRead.micros, false, &File::waitMicros, &File::readShare,
             &File::waitSlowness);
    give(w.tempReadRequests, true, &File::reads, &File::readShare);
    give(w.tempReads, true, &File::readBlocks, &File::readShare);
    giveTime(w.tempRead.micros, true, &File::readMicros, &File::readShare, &File::slowness);
    give(w.tempWriteRequests, true, &File::writes, &File::writeShare);
    give(w.tempWrites, true, &File::writeBlocks, &File::writeShare);
    give(w.tempWrite.micros, true, &File::writeMicros, &File::writeShare);
    for (File& file : files_) addSingleReads(file, w);
  }

  void write(const Snapshot& snapshot) override {
    for (const File& file : files_) {
      Rows& rows = file.temporary ? temporary_ : data_;
      rows.at(snapshot, file.tablespace, file.name, file.reads, file.writes, file.singleReads,
              file.readMicros / 10000, file.writeMicros / 10000, file.singleMicros / 10000, file.readBlocks,
              file.writeBlocks, file.waits, file.waitMicros / 10000, file.number);
      Rows& histogram = file.temporary ? temporaryHistogram_ : dataHistogram_;
      for (std::size_t i = 0; i < file.histogram.size(); ++i)
        if (file.histogram[i] > 0) histogram.at(snapshot, file.number, bucketMillis(i), file.histogram[i]);
    }
  }

 private:
  static constexpr const char* kColumns =
      "tsname filename phyrds phywrts singleblkrds readtim writetim singleblkrdtim phyblkrd phyblkwrt "
      "wait_count time file#";
  static constexpr const char* kBuckets = "file# singleblkrdtim_milli singleblkrds";

  void add(const std::string& tablespace, int part, int number, bool temporary, int reads, int scans,
           int writes) {
    std::string name;
    for (const char c : tablespace) name += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    const std::string two = (part < 10 ? "0" : "") + std::to_string(part);
    File file;
    file.tablespace = tablespace;
    file.name = database_.has(10) ? "+DATA/" + database_.name + (temporary ? "/tempfile/" : "/datafile/") +
                                        name + "_" + two + ".dbf"
                                  : "/u02/oradata/" + database_.name + "/" + name + two + ".dbf";
    file.number = number;
    file.temporary = temporary;
    file.readShare = reads;
    file.scanShare = scans;
    file.slowness = static_cast<int>(random_.between(820, 1210));
    file.waitSlowness = static_cast<int>(random_.between(550, 1600));
    file.writeShare = writes;
    files_.push_back(std::move(file));
  }

  // Deals `whole` out by the shares; what rounding leaves goes to the largest data file.
  void give(std::int64_t whole, bool temporary, std::int64_t File::*counter, int File::*share) {
    std::int64_t left = whole;
    File* largest = nullptr;
    for (File& file : files_) {
      if (file.temporary != temporary) continue;
      if (largest == nullptr || file.*share > largest->*share) largest = &file;
      const std::int64_t part = scaled(whole, file.*share, 1000);
      file.*counter += part;
      left -= part;
    }
    largest->*counter += left;
  }

  // Deals times out likewise, more of them to the slow files.
  void giveTime(std::int64_t whole, bool temporary, std::int64_t File::*counter, int File::*share,
                int File::*slowness) {
    std::int64_t shares = 0;
    for (const File& file : files_)
      if (file.temporary == temporary) shares += std::int64_t{file.*share} * (file.*slowness);
    for (File& file : files_)
      if (file.temporary == temporary && shares > 0)
        file.*counter += scaled(whole, std::int64_t{file.*share} * (file.*slowness), shares);
  }

  void addSingleReads(File& file, const Work& w) {
    const Waited& kind = file.temporary ? w.tempRead : w.singleRead;
    const std::int64_t count = file.temporary ? scaled(w.tempReadRequests, file.readShare, 4000)
                                              : scaled(w.singleReads, file.readShare, 1000);
    if (count == 0) return;
    const std::int64_t usual = kind.micros / std::max<std::int64_t>(1, kind.waits);
    const std::int64_t micros = count * usual * random_.around(file.slowness, 40) / 1000;
    file.singleReads += count;
    if (!file.temporary) file.readMicros += micros;
    file.singleMicros += micros;
    addSpread(file.histogram, count, micros, random_);
  }

  const Database& database_;
  Random random_;
  Rows data_, temporary_, dataHistogram_, temporaryHistogram_;
  std::vector<File> files_;
};

}  // namespace

TopicPtr makeFiles(const Setting& setting) { return std::make_unique<Files>(setting); }

}  // namespace kestrelix::demo

#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace kestrelix {

/// "select <columns> from" the named blocks. Each block is an inline view of one row, with the block's name
/// as its own and its column's: the growth of a statistic over the pair ("gccrrv"), the elapsed seconds
/// ("ela"), the transactions ("tran"), the block size in bytes at the end ("bs"). Joined without a condition,
/// they give one row, or none where a snapshot lacks one of the statistics. Fails with std::out_of_range for
/// an unknown name.
std::string selectFromBlocks(const std::string& columns, std::initializer_list<std::string_view> blocks);

}  // namespace kestrelix

/// The groups of rows about numbers and dates.
#pragma once

namespace zeb_bench
{

void add_number_text_rows();
void add_number_scanning_rows();
void add_date_rows();
void add_message_rows();

} // namespace zeb_bench

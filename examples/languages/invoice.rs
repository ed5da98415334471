//! Writes an invoice: invoice [FILE]

use std::{env, ffi::CStr, fs, os::raw::*, process, ptr};

type Job = *mut c_void;
type Text = *const u8;

#[link(name = "quorvane")]
extern "C" {
    fn quorvane_job_new(job: *mut Job) -> c_int;
    fn quorvane_job_free(job: Job);
    fn quorvane_job_error_text(job: Job) -> *const c_char;
    fn quorvane_job_set_path(job: Job, path: Text, n: usize) -> c_int;
    fn quorvane_job_set_stylesheet(job: Job, text: Text, n: usize, name: Text, m: usize) -> c_int;
    fn quorvane_job_set_data(job: Job, json: Text, n: usize, name: Text, m: usize) -> c_int;
    fn quorvane_job_render_file(job: Job, text: Text, n: usize, path: Text, m: usize) -> c_int;
}

fn fail(message: &str) -> ! {
    eprintln!("{message}");
    process::exit(1)
}

fn main() {
    let read = |name| fs::read(name).unwrap_or_else(|error| fail(&format!("{name}: {error}")));
    let file = env::args().nth(1).unwrap_or("invoice.rtf".into());
    let path = "invoice.rtfspec";
    let (text, styles, data) = (read(path), read("invoice.rtfss"), read("invoice.json"));
    let (t, s, d) = (text.as_ptr(), styles.as_ptr(), data.as_ptr());
    let mut job = ptr::null_mut();
    unsafe {
        if quorvane_job_new(&mut job) != 0
            || quorvane_job_set_path(job, path.as_ptr(), path.len()) != 0
            || quorvane_job_set_stylesheet(job, s, styles.len(), ptr::null(), 0) != 0
            || quorvane_job_set_data(job, d, data.len(), ptr::null(), 0) != 0
            || quorvane_job_render_file(job, t, text.len(), file.as_ptr(), file.len()) != 0
        {
            fail(&CStr::from_ptr(quorvane_job_error_text(job)).to_string_lossy());
        }
        quorvane_job_free(job);
    }
}

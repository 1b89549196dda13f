extern crate physx_sys;
